#pragma once

// A table of texts under heads that a person looks at: rows counted from 0, every row with a cell for each
// column. Hidden columns hold what rows are sorted by. Ten thousand rows are one assignment and one change to
// the observer.

#include <string>
#include <vector>

#include "station/screen/controls.h"

namespace quixair {

/// Pixels of the old PC's screen, whose measures were twentieths of a point.
constexpr int PixelsFromTwips(int twips) {
  return twips / 15;
}

struct GridColumn {
  std::string head = {};
  int pixels = 0;  // 0 hides it
  bool operator==(const GridColumn&) const = default;
};

using GridRow = std::vector<std::string>;

/// The places of the rows in ascending order of the texts in `column`, by their bytes, so that capitals come
/// before small letters; rows of equal texts keep their order.
std::vector<std::size_t> SortedOrder(const std::vector<GridRow>& rows, std::size_t column);

class Grid : public Control {
 public:
  Grid(ControlOwner& owner, std::string name) : Control(owner, std::move(name), ControlKind::kGrid) {}

  const std::vector<GridColumn>& columns() const { return columns_; }
  void SetColumns(std::vector<GridColumn> columns);

  int row_count() const { return static_cast<int>(rows_.size()); }
  const std::vector<GridRow>& rows() const { return rows_; }
  const std::string& cell(int row, int column) const;
  /// Rows are brought to the number of the columns.
  void SetRows(std::vector<GridRow> rows);
  void Clear() { SetRows({}); }
  /// Whole rows move.
  void SortBy(std::size_t column);
  /// `first` to `last`, both included, as far as they are there.
  void RemoveRows(int first, int last);
  /// Writes 1, 2, 3... down a column.
  void NumberRows(std::size_t column);

 private:
  std::vector<GridColumn> columns_;
  std::vector<GridRow> rows_;
};

}  // namespace quixair
