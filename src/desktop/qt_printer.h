#pragma once

// Printing through the desktop: a preview first, from there to a printer that the operator chooses or to a
// PDF file that he names. Windows run as boxes do, and leave when the program ends; between two pages the
// timers have their turn.

#include <QPagedPaintDevice>
#include <future>
#include <optional>
#include <string>

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
  explicit QtPrinter(QtDialogs& dialogs) : dialogs_(dialogs) {}
  /// The print system is asked in the background, for it may take its time: the name is the last one heard.
  std::string DefaultName() override;
  PrintOutcome Print(const std::vector<PrintedPage>& pages, std::string_view title) override;

 private:
  struct Job;
  /// None: back to the preview.
  std::optional<PrintOutcome> PrintOnPaper(const Job& job);
  std::optional<PrintOutcome> SaveAsPdf(const Job& job);
  void HearDefaultName(bool wait);

  QtDialogs& dialogs_;
  std::future<std::string> asked_;
  std::string default_name_;
  bool printing_ = false;
};

}  // namespace quixair::desktop
