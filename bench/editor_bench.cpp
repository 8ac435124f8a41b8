// The template editor's model at its largest: an insertion and a cut at the top of 1,999 events, with all the
// rows that the screen then shows (goal 100 ms each). The floor makes those rows once.

#include <benchmark/benchmark.h>

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

}  // namespace
}  // namespace quixair::bench
