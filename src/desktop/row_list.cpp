#include "desktop/row_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/station_text.h"
#include "station/screen/controls.h"

namespace quixair::desktop {
namespace {
constexpr int kRowPadding = 4;
constexpr int kSidePadding = 16;  // both sides, as in the style sheet, and a little more

QVariant Shown(const QString& text, const RowLook& look, int role) {
  const QPalette palette = QApplication::palette();
  QFont bold;
  bold.setBold(true);
  switch (role) {
    case Qt::DisplayRole:
      return text + look.note;
    case Qt::ToolTipRole:
      return text;
    case Qt::FontRole:
      return look.bold ? QVariant(bold) : QVariant();
    case Qt::ForegroundRole:
      if (look.faded) return palette.color(QPalette::Disabled, QPalette::Text);
      if (look.colored) return palette.color(QPalette::Link);
      return {};
    default:
      return {};
  }
}
}  // namespace

void ListRows::SetSource(const ListBox* source) {
  source_ = source;
  Reset();
}

void ListRows::SetFontMetrics(const QFontMetrics& metrics) {
  letter_width_ = metrics.averageCharWidth();
  row_size_.setHeight(metrics.height() + kRowPadding);
}

void ListRows::Reset() {
  beginResetModel();
  row_count_ = source_ != nullptr ? source_->row_count() : 0;
  std::size_t longest = 0;
  if (source_ != nullptr) {
    for (const std::string& row : source_->rows()) longest = std::max(longest, row.size());
  }
  row_size_.setWidth(static_cast<int>(longest) * letter_width_ + kSidePadding);
  endResetModel();
}

int ListRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : row_count_;
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
  if (role == Qt::SizeHintRole) return row_size_;
  // The control may hold fewer rows already; the reset that shows it is on its way.
  if (source_ == nullptr || index.row() >= source_->row_count()) return {};
  const std::string& row = source_->row(index.row());
  const QString text = ToQt(row);
  const std::string& hint = source_->hint();
  if (role == Qt::ToolTipRole && !hint.empty()) return QVariant(text + QLatin1Char('\n') + ToQt(hint));
  return Shown(text, look_of ? look_of(row) : RowLook(), role);
}

std::vector<std::string> ListRows::rows() const {
  return source_ != nullptr ? source_->rows() : std::vector<std::string>();
}

RowList::RowList(QWidget* parent) : QListView(parent), rows_(nullptr) {
  setModel(&rows_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideNone);
  rows_.SetFontMetrics(fontMetrics());
}

void RowList::ResetRows() {
  const bool at_end = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  const int place = verticalScrollBar()->value();
  rows_.Reset();
  if (property("followsEnd").toBool() && at_end) {
    scrollToBottom();
  } else {
    doItemsLayout();
    verticalScrollBar()->setValue(place);
  }
}

void RowList::ShowFrom(int row) {
  scrollTo(rows_.index(row), PositionAtTop);
}

void RowList::ShowSelection(const std::vector<int>& rows) {
  if (SelectedRows() == rows) return;
  selectionModel()->clearSelection();
  for (const int row : rows) selectionModel()->select(rows_.index(row), QItemSelectionModel::Select);
  if (rows.empty()) return;
  selectionModel()->setCurrentIndex(rows_.index(rows.front()), QItemSelectionModel::NoUpdate);
  scrollTo(rows_.index(rows.front()), selection_place_);
}

std::vector<int> RowList::SelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedIndexes()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void RowList::TellSelection() {
  if (on_select) on_select(SelectedRows());
}

QItemSelectionModel::SelectionFlags RowList::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
  if (selectionMode() != SingleSelection) return QListView::selectionCommand(index, event);
  // No click takes a choice back: neither one on the empty part nor one with a modifier.
  if (!index.isValid() || (event != nullptr && event->type() == QEvent::MouseButtonRelease)) {
    return QItemSelectionModel::NoUpdate;
  }
  return QItemSelectionModel::ClearAndSelect;
}

void RowList::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (std::exchange(release_of_double_click_, false) || event->button() != Qt::LeftButton) return;
  if (indexAt(event->position().toPoint()).isValid() && selectionModel()->hasSelection()) TellSelection();
}

void RowList::mouseDoubleClickEvent(QMouseEvent* event) {
  QListView::mouseDoubleClickEvent(event);
  if (event->button() != Qt::LeftButton) return;
  release_of_double_click_ = true;
  if (indexAt(event->position().toPoint()).isValid() && on_double_click) on_double_click();
}

/// The first arrow key in a list without a choice chooses the row that the keyboard stands on, which the
/// toolkit would pass over.
bool RowList::ChoosesFirst(const QKeyEvent& event) {
  const bool arrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  if (!arrow || event.modifiers() != Qt::NoModifier || selectionMode() != SingleSelection) return false;
  if (selectionModel()->hasSelection() || !currentIndex().isValid()) return false;
  selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
  return true;
}

void RowList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (on_enter) on_enter();
    return;
  }
  if (ChoosesFirst(*event)) {
    TellSelection();
    return;
  }
  const std::vector<int> before = SelectedRows();
  QListView::keyPressEvent(event);
  if (SelectedRows() != before) TellSelection();
}

void RowList::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  rows_.SetFontMetrics(fontMetrics());
  scheduleDelayedItemsLayout();
}

}  // namespace quixair::desktop
