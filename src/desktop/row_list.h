#pragma once

// The view of a station's list box: a list view that reads its rows straight from the control, so that ten
// thousand rows cost one reset and the painting of those in sight. It tells a person's choices apart from its
// own changes: only the former reach the functions below. Class "QListView" in a form makes one. The binder
// owns the tie to the control.

#include <QAbstractListModel>
#include <QListView>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quixair {
class ListBox;
}

namespace quixair::desktop {

/// How a row departs from the others.
struct RowLook {
  bool bold = false;
  bool colored = false;  // in the colour of links
  bool faded = false;
  QString note = {};  // behind the text
};

/// The rows of a list box as they were at the last Reset; texts are converted when they are looked at.
class ListRows : public QAbstractListModel {
 public:
  explicit ListRows(QObject* parent) : QAbstractListModel(parent) {}
  /// None empties the view for good.
  void SetSource(const ListBox* source);
  /// One signal to the view, however many rows changed.
  void Reset();
  QSize row_size() const { return row_size_; }
  void SetFontMetrics(const QFontMetrics& metrics);
  /// Empty when there is no source.
  std::vector<std::string> rows() const;

  /// Asked for the rows in sight only; none for a list whose rows look all the same.
  std::function<RowLook(std::string_view row)> look_of;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const ListBox* source_ = nullptr;
  int row_count_ = 0;
  int letter_width_ = 8;
  QSize row_size_{0, 18};
};

class RowList : public QListView {
 public:
  explicit RowList(QWidget* parent = nullptr);

  ListRows& list_rows() { return rows_; }
  /// Shows the rows anew without losing the place; a list with the form's property "followsEnd" keeps its end
  /// in sight.
  void ResetRows();
  /// Scrolls so that the row is the first one, or as far as the list goes.
  void ShowFrom(int row);
  void ShowSelection(const std::vector<int>& rows);

  std::function<void(std::vector<int> rows)> on_select;
  std::function<void()> on_double_click;
  std::function<void()> on_enter;

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

  ScrollHint selection_place_ = EnsureVisible;  // where the station's choice is scrolled to

 private:
  bool ChoosesFirst(const QKeyEvent& event);
  std::vector<int> SelectedRows() const;
  void TellSelection();

  ListRows rows_;
  bool release_of_double_click_ = false;
};

}  // namespace quixair::desktop
