// Pick-List playback: its load against the floor of only reading the same data files, and a day on the air.

#include <benchmark/benchmark.h>

#include "bench_station.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"

namespace quixair::bench {
namespace {

void OpenPickList(simulation::SimulatedStation& station) {
  station.Do([&station] { station.platform().screens.Open("PickListForm1"); });
}

/// A template as long as the editor lets it grow. Counters: the floor and the ratio in the same runs.
void PickListLoad(benchmark::State& state) {
  const BenchStation folder(1999, 180000);
  folder.PutPickLists(1999);
  std::vector<std::string> songs;
  for (const std::string& file : folder.DataFiles()) {
    if (std::filesystem::path(file).filename().string().front() == 'M') songs.push_back(file);
  }
  ReadAll(songs);
  double floor = 0;
  double load = 0;
  for (auto _ : state) {
    floor += SecondsOf([&] { ReadAll(songs); });
    auto station = folder.Start();
    const double seconds = SecondsOf([&] { OpenPickList(*station); });
    load += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["floor_ms"] = floor / static_cast<double>(state.iterations()) * 1e3;
  state.counters["ratio"] = load / floor;
}
BENCHMARK(PickListLoad)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A daily template of songs of three minutes, overlap 3, a record written at each event.
void PickListDay(benchmark::State& state) {
  const BenchStation folder(480, 180000);
  folder.PutPickLists(480);
  folder.PutOverlap(3);
  for (auto _ : state) {
    auto station = folder.Start();
    OpenPickList(*station);
    dynamic_cast<Button&>(*station->FindScreen("PickListForm1")->FindControl("Start")).Click();
    station->time().Advance(std::chrono::hours(24));
    if (station->FindScreen("PickListForm1") == nullptr) state.SkipWithError("the list came to an end");
    // What a day leaves must not be there for the next run.
    folder.PutPickLists(480);
  }
}
BENCHMARK(PickListDay)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quixair::bench

BENCHMARK_MAIN();
