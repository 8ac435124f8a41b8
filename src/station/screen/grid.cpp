#include "station/screen/grid.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quixair {

std::vector<std::size_t> SortedOrder(const std::vector<GridRow>& rows, std::size_t column) {
  std::vector<std::size_t> order(rows.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&rows, column](std::size_t a, std::size_t b) {
    return rows[a].at(column) < rows[b].at(column);
  });
  return order;
}

const std::string& Grid::cell(int row, int column) const {
  return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

void Grid::SetColumns(std::vector<GridColumn> columns) {
  columns_ = std::move(columns);
  Changed(Aspect::kColumns);
  SetRows(std::exchange(rows_, {}));
}

void Grid::SetRows(std::vector<GridRow> rows) {
  rows_ = std::move(rows);
  for (GridRow& row : rows_) row.resize(columns_.size());
  Changed(Aspect::kRows);
}

void Grid::SortBy(std::size_t column) {
  std::vector<GridRow> sorted;
  sorted.reserve(rows_.size());
  for (const std::size_t place : SortedOrder(rows_, column)) sorted.push_back(std::move(rows_[place]));
  rows_ = std::move(sorted);
  Changed(Aspect::kRows);
}

void Grid::RemoveRows(int first, int last) {
  const int begin = std::clamp(first, 0, row_count());
  const int end = std::clamp(last + 1, begin, row_count());
  rows_.erase(rows_.begin() + begin, rows_.begin() + end);
  Changed(Aspect::kRows);
}

void Grid::NumberRows(std::size_t column) {
  for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i].at(column) = std::to_string(i + 1);
  Changed(Aspect::kRows);
}

}  // namespace quixair
