#include "desktop/report_preview.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

namespace quixair::desktop {
namespace {

constexpr QSize kFirstSize{900, 760};
constexpr int kSheetMargin = 24;  // around the sheet, in the window
constexpr int kWholeWidth = 0;    // zooms that follow the window
constexpr int kWholePage = -1;
constexpr int kMostCopies = 99;

QComboBox* MakeChoice(const char* name, const QString& caption, QHBoxLayout& bar) {
  auto* label = new QLabel(caption);
  auto* choice = new QComboBox;
  choice->setObjectName(QLatin1String(name));
  label->setBuddy(choice);
  bar.addWidget(label);
  bar.addWidget(choice);
  return choice;
}

QPushButton* MakeButton(const char* name, const QString& caption, QHBoxLayout& bar) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  bar.addWidget(button);
  return button;
}

}  // namespace

ReportSheet::ReportSheet(const std::vector<PrintedPage>& pages) : pages_(pages), extent_(ExtentOf(pages)) {}

void ReportSheet::ShowPage(int page) {
  page_ = std::clamp(page, 0, std::max(0, static_cast<int>(pages_.size()) - 1));
  update();
}

void ReportSheet::SetPaper(const QPageLayout& paper) {
  paper_ = paper;
  SetScale(scale_);
}

void ReportSheet::SetScale(double scale) {
  scale_ = scale;
  setFixedSize((paper_.fullRect(QPageLayout::Point).size() * scale).toSize());
  update();
}

void ReportSheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.setPen(Qt::gray);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (pages_.empty()) return;
  painter.scale(scale_, scale_);
  PaintReportPage(painter, paper_.paintRect(QPageLayout::Point), pages_[static_cast<std::size_t>(page_)],
                  extent_);
}

ReportPreview::ReportPreview(const std::vector<PrintedPage>& pages, const QString& title,
                             const QPageLayout& paper, const std::optional<PrintersFound>& printers,
                             QWidget* parent)
    : QDialog(parent), pages_(pages), sheet_(new ReportSheet(pages)), area_(new QScrollArea) {
  setWindowTitle(title);
  sheet_->SetPaper(paper);
  area_->setWidget(sheet_);
  area_->setAlignment(Qt::AlignCenter);
  area_->setBackgroundRole(QPalette::Dark);
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeBar());
  column->addWidget(area_, 1);
  column->addWidget(MakeButtons(printers));
  resize(kFirstSize);
  ShowPage(0);
  findChild<QPushButton*>(printer_ != nullptr ? QStringLiteral("print") : QStringLiteral("savePdf"))
      ->setFocus();
}

const QPageLayout& ReportPreview::paper() const {
  return sheet_->paper();
}

QWidget* ReportPreview::MakeBar() {
  auto* holder = new QWidget;
  auto* bar = new QHBoxLayout(holder);
  bar->setContentsMargins(0, 0, 0, 0);
  previous_ = MakeButton("previous", QStringLiteral("P&revious"), *bar);
  next_ = MakeButton("next", QStringLiteral("&Next"), *bar);
  place_ = new QLabel;
  place_->setObjectName(QStringLiteral("place"));
  bar->addWidget(place_);
  bar->addStretch(1);
  paper_ = MakeChoice("paper", QStringLiteral("Pap&er:"), *bar);
  for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter}) {
    paper_->addItem(QPageSize::name(id), id);
  }
  if (paper_->findData(sheet_->paper().pageSize().id()) < 0) {
    paper_->addItem(sheet_->paper().pageSize().name(), sheet_->paper().pageSize().id());
  }
  paper_->setCurrentIndex(paper_->findData(sheet_->paper().pageSize().id()));
  zoom_ = MakeChoice("zoom", QStringLiteral("&Zoom:"), *bar);
  zoom_->addItem(QStringLiteral("Whole width"), kWholeWidth);
  zoom_->addItem(QStringLiteral("Whole page"), kWholePage);
  for (const int percent : {75, 100, 150, 200}) zoom_->addItem(QStringLiteral("%1 %").arg(percent), percent);
  connect(previous_, &QPushButton::clicked, this, [this] { ShowPage(sheet_->page() - 1); });
  connect(next_, &QPushButton::clicked, this, [this] { ShowPage(sheet_->page() + 1); });
  connect(paper_, &QComboBox::currentIndexChanged, this, [this](int index) { ChoosePaper(index); });
  connect(zoom_, &QComboBox::currentIndexChanged, this, [this] { ApplyZoom(); });
  return holder;
}

QString ReportPreview::printer() const {
  return printer_ != nullptr ? printer_->currentText() : QString();
}

int ReportPreview::copies() const {
  return copies_ != nullptr ? copies_->value() : 1;
}

void ReportPreview::AddPrinters(const PrintersFound& printers, QHBoxLayout& bar) {
  printer_ = MakeChoice("printer", QStringLiteral("Prin&ter:"), bar);
  printer_->addItems(printers.names);
  printer_->setCurrentIndex(std::max(0, static_cast<int>(printers.names.indexOf(printers.default_name))));
  auto* label = new QLabel(QStringLiteral("C&opies:"));
  copies_ = new QSpinBox;
  copies_->setObjectName(QStringLiteral("copies"));
  copies_->setRange(1, kMostCopies);
  label->setBuddy(copies_);
  bar.addWidget(label);
  bar.addWidget(copies_);
}

QWidget* ReportPreview::MakeButtons(const std::optional<PrintersFound>& printers) {
  auto* holder = new QWidget;
  auto* bar = new QHBoxLayout(holder);
  bar->setContentsMargins(0, 0, 0, 0);
  const bool has_printer = printers && !printers->names.isEmpty();
  if (has_printer) {
    AddPrinters(*printers, *bar);
  } else {
    bar->addWidget(new QLabel(printers ? QStringLiteral("No printer is set up on this PC.")
                                       : QStringLiteral("The print system of this PC does not answer.")));
  }
  bar->addStretch(1);
  auto* print = MakeButton("print", QStringLiteral("&Print"), *bar);
  auto* save = MakeButton("savePdf", QStringLiteral("&Save as PDF..."), *bar);
  auto* cancel = MakeButton("cancel", QStringLiteral("&Cancel"), *bar);
  print->setEnabled(has_printer);
  QPushButton* first = has_printer ? print : save;
  first->setProperty("role", QStringLiteral("primary"));
  first->setDefault(true);
  connect(print, &QPushButton::clicked, this, [this] { done(kPrint); });
  connect(save, &QPushButton::clicked, this, [this] { done(kSavePdf); });
  connect(cancel, &QPushButton::clicked, this, [this] { done(kCancel); });
  return holder;
}

void ReportPreview::ShowPage(int page) {
  sheet_->ShowPage(page);
  const int count = static_cast<int>(pages_.size());
  place_->setText(QStringLiteral("Page %1 of %2").arg(sheet_->page() + 1).arg(count));
  previous_->setEnabled(sheet_->page() > 0);
  next_->setEnabled(sheet_->page() + 1 < count);
  area_->verticalScrollBar()->setValue(0);
}

void ReportPreview::ChoosePaper(int index) {
  QPageLayout paper = sheet_->paper();
  paper.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(paper_->itemData(index).toInt())));
  sheet_->SetPaper(paper);
  ApplyZoom();
}

void ReportPreview::ApplyZoom() {
  const QSizeF paper = sheet_->paper().fullRect(QPageLayout::Point).size();
  const double width = area_->width() - kSheetMargin - area_->verticalScrollBar()->sizeHint().width();
  const double height = area_->height() - kSheetMargin;
  const int zoom = zoom_->currentData().toInt();
  if (zoom == kWholeWidth) {
    sheet_->SetScale(width / paper.width());
  } else if (zoom == kWholePage) {
    sheet_->SetScale(std::min(width / paper.width(), height / paper.height()));
  } else {
    sheet_->SetScale(zoom / 100.0 * logicalDpiX() / 72.0);
  }
}

void ReportPreview::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  ApplyZoom();
}

}  // namespace quixair::desktop
