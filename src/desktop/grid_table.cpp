#include "desktop/grid_table.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "desktop/station_text.h"
#include "station/screen/grid.h"

namespace quixair::desktop {
namespace {

constexpr int kRowPadding = 6;
constexpr double kOldLetterWidth = 6;  // pixels of a letter on the screen that the widths were made for

}  // namespace

void GridCells::SetSource(const Grid* source) {
  source_ = source;
  Reset();
}

void GridCells::Reset() {
  beginResetModel();
  row_count_ = source_ != nullptr ? source_->row_count() : 0;
  endResetModel();
}

int GridCells::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : row_count_;
}

int GridCells::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || source_ == nullptr ? 0 : static_cast<int>(source_->columns().size());
}

QVariant GridCells::data(const QModelIndex& index, int role) const {
  // The control may hold fewer rows already; the reset that shows it is on its way.
  if (source_ == nullptr || index.row() >= source_->row_count()) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
    return ToQt(source_->cell(index.row(), index.column()));
  }
  return {};
}

QVariant GridCells::headerData(int section, Qt::Orientation orientation, int role) const {
  if (source_ == nullptr || orientation != Qt::Horizontal || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return ToQt(source_->columns()[static_cast<std::size_t>(section)].head);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

GridTable::GridTable(QWidget* parent) : QTableView(parent), cells_(nullptr) {
  setModel(&cells_);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  FitRows();
}

void GridTable::SetSource(const Grid* source) {
  source_ = source;
  cells_.SetSource(source);
}

void GridTable::ResetRows() {
  cells_.Reset();
  verticalScrollBar()->setValue(0);
}

void GridTable::ShowColumns() {
  if (source_ == nullptr) return;
  cells_.Reset();
  const double scale = std::max(1.0, fontMetrics().horizontalAdvance(u'0') / kOldLetterWidth);
  for (int section = 0; section < cells_.columnCount(); ++section) {
    const int pixels = source_->columns()[static_cast<std::size_t>(section)].pixels;
    setColumnHidden(section, pixels == 0);
    if (pixels == 0) continue;
    const int head = horizontalHeader()->sectionSizeHint(section);
    setColumnWidth(section, std::max(static_cast<int>(pixels * scale), head));
  }
}

void GridTable::FitRows() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
}

void GridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  FitRows();
  ShowColumns();
}

}  // namespace quixair::desktop
