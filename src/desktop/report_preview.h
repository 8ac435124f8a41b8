#pragma once

// The window that shows a report before it is printed: a page at a time, at any size, on the paper chosen. It
// ends with what the operator wants done. Only the page in sight is painted, so that a long report does not
// hold up the air.

#include <QDialog>
#include <QPageLayout>
#include <QWidget>
#include <optional>
#include <vector>

#include "desktop/print_system.h"
#include "desktop/report_paper.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;

namespace quixair::desktop {

/// A sheet of paper with a page of the report on it.
class ReportSheet : public QWidget {
 public:
  explicit ReportSheet(const std::vector<PrintedPage>& pages);
  int page() const { return page_; }
  void ShowPage(int page);
  void SetPaper(const QPageLayout& paper);
  const QPageLayout& paper() const { return paper_; }
  /// Pixels for a point of the paper.
  void SetScale(double scale);
  double scale() const { return scale_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::vector<PrintedPage>& pages_;
  const ReportExtent extent_;
  QPageLayout paper_;
  double scale_ = 1;
  int page_ = 0;
};

class ReportPreview : public QDialog {
 public:
  enum Result { kCancel = QDialog::Rejected, kPrint, kSavePdf };

  /// `pages` outlive this. Without printers, or with none known since the print system does not answer, there is
  /// only the PDF file.
  ReportPreview(const std::vector<PrintedPage>& pages, const QString& title, const QPageLayout& paper,
                const std::optional<PrintersFound>& printers, QWidget* parent);
  const QPageLayout& paper() const;
  QString printer() const;
  int copies() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeBar();
  QWidget* MakeButtons(const std::optional<PrintersFound>& printers);
  void AddPrinters(const PrintersFound& printers, QHBoxLayout& bar);
  void ShowPage(int page);
  void ChoosePaper(int index);
  void ApplyZoom();

  const std::vector<PrintedPage>& pages_;
  ReportSheet* sheet_;
  QScrollArea* area_;
  QPushButton* previous_;
  QPushButton* next_;
  QLabel* place_;
  QComboBox* paper_;
  QComboBox* zoom_;
  QComboBox* printer_ = nullptr;  // none without printers
  QSpinBox* copies_ = nullptr;
};

}  // namespace quixair::desktop
