#pragma once

// The view of a station's grid: a table that reads its cells straight from the control, so that ten thousand
// rows cost one reset and the painting of those in sight. Class "QTableView" in a form makes one. The binder
// owns the tie to the control.

#include <QAbstractTableModel>
#include <QTableView>

namespace quixair {
class Grid;
}

namespace quixair::desktop {

/// The cells of a grid; texts are converted when they are looked at.
class GridCells : public QAbstractTableModel {
 public:
  explicit GridCells(QObject* parent) : QAbstractTableModel(parent) {}
  /// None empties the view for good.
  void SetSource(const Grid* source);
  void Reset();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const Grid* source_ = nullptr;
  int row_count_ = 0;
};

class GridTable : public QTableView {
 public:
  explicit GridTable(QWidget* parent = nullptr);

  void SetSource(const Grid* source);
  void ResetRows();
  /// Widths and what is hidden.
  void ShowColumns();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FitRows();

  const Grid* source_ = nullptr;
  GridCells cells_;
};

}  // namespace quixair::desktop
