// The template editor's model at its largest: an insertion and a cut at the top of 1,999 events, with all the
// rows that the screen then shows (goal 100 ms each). The floor makes those rows once. And its opening on a
// library of ten thousand: what counts for the air is the longest single portion (goal 50 ms).

#include <benchmark/benchmark.h>

#include <algorithm>

#include "bench_station.h"
#include "station/templates/template_entries.h"

namespace quixair::bench {
namespace {

TemplateEntries FullTemplate() {
  TemplateEntries entries;
  for (int i = 1; i < TemplateEntries::kMost; ++i) {
    entries.Append(RecordingEntry("M" + std::to_string(10000 + i), "Some artist", "Some title", "180"));
  }
  return entries;
}

void EditorRows(benchmark::State& state) {
  const TemplateEntries entries = FullTemplate();
  for (auto _ : state) benchmark::DoNotOptimize(entries.Rows());
}
BENCHMARK(EditorRows)->Unit(benchmark::kMicrosecond);

void EditorInsertAndCutAtTop(benchmark::State& state) {
  TemplateEntries entries = FullTemplate();
  for (auto _ : state) {
    entries.Open(1);
    benchmark::DoNotOptimize(entries.Rows());
    entries.Fill(std::string(kPauseEntry));
    benchmark::DoNotOptimize(entries.Rows());
    entries.Cut(1);
    benchmark::DoNotOptimize(entries.Rows());
  }
}
BENCHMARK(EditorInsertAndCutAtTop)->Unit(benchmark::kMicrosecond);

void EditorOpening(benchmark::State& state) {
  const BenchStation folders(10000, 180000);
  double longest = 0;
  for (auto _ : state) {
    const auto station = folders.Start();
    const auto open = [&] { station->Do([&] { station->platform().screens.Open("EraseUtility"); }); };
    longest = std::max(longest, SecondsOf(open));
    for (int portion = 0; portion < 200; ++portion)
      longest = std::max(longest, SecondsOf([&] { station->time().Advance(std::chrono::milliseconds(5)); }));
  }
  state.counters["longest_ms"] = longest * 1000;
}
BENCHMARK(EditorOpening)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quixair::bench
