// The library reports at their largest: 10,000 rows sorted by a hidden key and made into pages (goal 30 ms
// each).

#include <benchmark/benchmark.h>

#include "station/utilities/library_report.h"

namespace quixair::bench {
namespace {

constexpr int kRows = 10000;

std::vector<GridRow> LibraryRows() {
  std::vector<GridRow> rows;
  for (int i = 0; i < kRows; ++i) {
    const std::string key = std::to_string((i * 7919) % kRows);
    rows.push_back({std::to_string(i + 1), "M" + key, "Some artist " + key, "Some title", "183.456",
                    "01-01-26", "1999", "A", "C", "", "M" + key, "Some artist " + key, "Some title"});
  }
  return rows;
}

void GridSort(benchmark::State& state) {
  const std::vector<GridRow> rows = LibraryRows();
  for (auto _ : state) benchmark::DoNotOptimize(SortedOrder(rows, kNameKey));
}
BENCHMARK(GridSort)->Unit(benchmark::kMillisecond);

void LibraryReportPages(benchmark::State& state) {
  const std::vector<GridRow> rows = LibraryRows();
  for (auto _ : state) {
    benchmark::DoNotOptimize(LibraryPages(LibraryReportOf(RecordingKind::kMusic), rows, "11/22/2026"));
  }
}
BENCHMARK(LibraryReportPages)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quixair::bench
