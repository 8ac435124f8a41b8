#include "desktop/qt_printer.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <chrono>

#include "desktop/report_paper.h"
#include "desktop/report_preview.h"
#include "desktop/station_text.h"

namespace quixair::desktop {
namespace {

constexpr double kMargin = 15;  // millimetres
constexpr double kPointsPerInch = 72;
constexpr int kResolution = 600;
constexpr std::chrono::seconds kSpooling{30};  // a slow machine takes ten for 10,000 recordings

}  // namespace

struct QtPrinter::Job {
  const std::vector<PrintedPage>& pages;
  QString title;
  QPageLayout paper;
  QString printer = {};
  int copies = 1;
};

bool PaintReport(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages,
                 const std::function<void()>& after_page) {
  const ReportExtent extent = ExtentOf(pages);
  const QPageLayout paper = device.pageLayout();
  // The painter's origin is the corner inside the margins.
  const QRectF area(QPointF(0, 0), paper.paintRect(QPageLayout::Point).size());
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double scale = device.logicalDpiX() / kPointsPerInch;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !device.newPage()) return false;
    painter.resetTransform();
    painter.scale(scale, scale);
    PaintReportPage(painter, area, pages[i], extent);
    after_page();
  }
  return painter.end();
}

bool WritePdf(const QString& path, const std::vector<PrintedPage>& pages, const QString& title,
              const QPageLayout& paper, const std::function<void()>& after_page) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setTitle(title);
    writer.setResolution(kResolution);
    writer.setPageLayout(paper);
    if (!PaintReport(writer, pages, after_page)) return false;
  }
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes.data()) == bytes.size() && file.commit();
}

QPageLayout UsualPaper() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageLayout(QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                     QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
}

std::string QtPrinter::DefaultName() {
  if (!printing_) system_.LookAgain();
  return FromQt(system_.found().default_name);
}

PrintOutcome QtPrinter::Print(const std::vector<PrintedPage>& pages, std::string_view title) {
  struct Printing {  // the print system is asked by one thread at a time
    explicit Printing(bool& flag) : flag_(flag) { flag_ = true; }
    ~Printing() { flag_ = false; }
    bool& flag_;
  } const printing(printing_);
  Job job{.pages = pages, .title = ToQt(title), .paper = UsualPaper()};
  std::optional<PrintOutcome> outcome;
  while (!outcome) {
    ReportPreview preview(pages, job.title, job.paper, system_.Find(patience_, turn_), dialogs_.Over());
    const int wanted = dialogs_.Run(preview);
    job.paper = preview.paper();
    job.printer = preview.printer();
    job.copies = preview.copies();
    if (wanted == ReportPreview::kPrint) {
      outcome = PrintOnPaper(job);
    } else if (wanted == ReportPreview::kSavePdf) {
      outcome = SaveAsPdf(job);
    } else {
      outcome = PrintOutcome::kCancelled;
    }
  }
  return *outcome;
}

PrintOutcome QtPrinter::PrintOnPaper(const Job& job) {
  // The toolkit's own print dialog would ask the print system on this thread, and wait for it.
  const bool printed = system_.Do(
      [pages = job.pages, title = job.title, paper = job.paper, name = job.printer, copies = job.copies] {
        QPrinter printer(QPrinter::HighResolution);
        printer.setPrinterName(name);
        printer.setDocName(title);
        printer.setPageLayout(paper);
        printer.setCopyCount(copies);
        return PaintReport(printer, pages, [] {});
      },
      kSpooling, turn_);
  return printed ? PrintOutcome::kPrinted : PrintOutcome::kFault;
}

std::optional<PrintOutcome> QtPrinter::SaveAsPdf(const Job& job) {
  QFileDialog dialog(dialogs_.Over(), QStringLiteral("Save as PDF"), QDir::homePath(),
                     QStringLiteral("PDF files (*.pdf)"));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(job.title + QStringLiteral(".pdf"));
  if (dialogs_.Run(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const bool written = WritePdf(dialog.selectedFiles().constFirst(), job.pages, job.title, job.paper,
                                [this] { dialogs_.LetTimersRun(); });
  return written ? PrintOutcome::kPrinted : PrintOutcome::kFault;
}

}  // namespace quixair::desktop
