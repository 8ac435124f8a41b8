#pragma once

// Printing through the desktop: a preview first, from there to a printer that the operator chooses or to a
// PDF file that he names. Windows run as boxes do, and leave when the program ends. A print system that hangs
// is told as a fault after some seconds; the timers go on all the while.

#include <QPagedPaintDevice>
#include <optional>
#include <string>

#include "desktop/print_system.h"
#include "desktop/qt_dialogs.h"
#include "station/platform/printer.h"

namespace quixair::desktop {

/// Paints every page on the device, `after_page` behind each; false when the device failed.
bool PaintReport(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages,
                 const std::function<void()>& after_page);

/// The file is whole or is not written at all.
bool WritePdf(const QString& path, const std::vector<PrintedPage>& pages, const QString& title,
              const QPageLayout& paper, const std::function<void()>& after_page);

/// Of the paper of this country, with the margins that every printer can keep.
QPageLayout UsualPaper();

class QtPrinter : public Printer {
 public:
  using Patience = std::chrono::milliseconds;
  /// `patience` with a print system that does not answer.
  explicit QtPrinter(QtDialogs& dialogs, PrintSystem system = PrintSystem(),
                     Patience patience = Patience(3000))
      : dialogs_(dialogs), system_(std::move(system)), patience_(patience) {}
  QtPrinter(const QtPrinter&) = delete;
  QtPrinter& operator=(const QtPrinter&) = delete;
  /// The last one heard.
  std::string DefaultName() override;
  PrintOutcome Print(const std::vector<PrintedPage>& pages, std::string_view title) override;

 private:
  struct Job;
  PrintOutcome PrintOnPaper(const Job& job);
  /// None: back to the preview.
  std::optional<PrintOutcome> SaveAsPdf(const Job& job);

  QtDialogs& dialogs_;
  PrintSystem system_;
  Patience patience_;
  const PrintSystem::Turn turn_ = [this] { dialogs_.LetTimersRun(); };
  bool printing_ = false;
};

}  // namespace quixair::desktop
