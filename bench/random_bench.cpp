// Random playback: its load against the floor of only reading the same files, a tick, a choice, a virtual
// day.

#include <benchmark/benchmark.h>

#include "bench_station.h"
#include "station/platform/engine_random.h"
#include "station/random/item_selection.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"

namespace quixair::bench {
namespace {

constexpr int kSongMs = 180000;

/// Counters: floor_s, load_s and their ratio in the same runs (goal 1.5), peak memory.
void RandomLoad(benchmark::State& state) {
  const BenchStation folder(static_cast<int>(state.range(0)), kSongMs);
  const std::vector<std::string> files = folder.DataFiles();
  ReadAll(files);
  ResetPeakMemory();
  double floor = 0;
  double load = 0;
  for (auto _ : state) {
    floor += SecondsOf([&] { ReadAll(files); });
    auto station = folder.Start();
    const double seconds = SecondsOf([&] { OpenRandom(*station); });
    load += seconds;
    state.SetIterationTime(seconds);
  }
  const auto runs = static_cast<double>(state.iterations());
  state.counters["floor_ms"] = floor / runs * 1e3;
  state.counters["ratio"] = load / floor;
  state.counters["us_per_recording"] = load / runs * 1e6 / static_cast<double>(state.range(0));
  state.counters["peak_MiB"] = PeakMebibytes();
}
BENCHMARK(RandomLoad)->Arg(1000)->Arg(10000)->Arg(50000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One tick of the channel poll while an item plays (goal 20 us).
void WatcherTick(benchmark::State& state) {
  const BenchStation folder(50, 2'000'000'000);
  auto station = folder.Start();
  OpenRandom(*station);
  PressStart(*station);
  auto& timer = dynamic_cast<Timer&>(*station->FindScreen("RandomForm1")->FindControl("Timer2"));
  for (auto _ : state) timer.on_tick();
}
BENCHMARK(WatcherTick)->Unit(benchmark::kMicrosecond);

/// The choice of a song from 2,000 of which nearly all stand in the history.
void ChooseFromFullHistory(benchmark::State& state) {
  const RandomSettings settings = [] {
    RandomSettings music_only;
    ApplyPlaybackDefaults(music_only);
    return music_only;
  }();
  RotationPools pools;
  for (int i = 1; i <= 2000; ++i) {
    PoolRow song;
    song.RecordingId = "M" + std::to_string(10000 + i);
    pools.music.Add(song);
  }
  RotationState full;
  for (int slot = 2; slot < 1999; ++slot) {
    full.MusicHistory.Advance();
    full.MusicHistory.SetSlot(slot, pools.music.row(slot).RecordingId);
  }
  EngineRandom random(1);
  WorkingItem item;
  for (auto _ : state) {
    state.PauseTiming();
    RotationState rotation = full;
    ItemSelection selection(settings, pools, rotation, random);
    state.ResumeTiming();
    benchmark::DoNotOptimize(selection.Choose("M1", item));
  }
}
BENCHMARK(ChooseFromFullHistory)->Unit(benchmark::kMicrosecond);

/// A day on the air from 2,000 songs of three minutes, everything written to the disk's files (goal 2 s).
void VirtualDay(benchmark::State& state) {
  const BenchStation folder(2000, kSongMs);
  ResetPeakMemory();
  for (auto _ : state) {
    auto station = folder.Start();
    OpenRandom(*station);
    PressStart(*station);
    station->time().Advance(std::chrono::hours(24));
  }
  state.counters["peak_MiB"] = PeakMebibytes();
}
BENCHMARK(VirtualDay)->Unit(benchmark::kMillisecond);

/// One tick with a day's template of 2,000 rows to look through (goal 150 us); the floor is the comparisons alone.
void ScanTick(benchmark::State& state) {
  const BenchStation folder(50, 2'000'000'000);
  folder.PutStopSets(2000, 0);
  auto station = folder.Start();
  OpenRandom(*station);
  ChooseTodaysTemplate(*station);
  PressStart(*station);
  auto& timer = dynamic_cast<Timer&>(*station->FindScreen("RandomForm1")->FindControl("Timer2"));
  for (auto _ : state) timer.on_tick();
  state.SetItemsProcessed(state.iterations() * 2000);
}
BENCHMARK(ScanTick)->Unit(benchmark::kMicrosecond);

/// A week unattended: 24 stop sets a day of 5 rows, overlap 3, 2,000 songs (goal 3 s a day). The memory of day 7 over that
/// of day 2 tells whether anything grows.
void VirtualWeek(benchmark::State& state) {
  const BenchStation folder(2000, kSongMs);
  folder.PutStopSets(24, 5);
  folder.PutOverlap(3);
  double day_2 = 0;
  for (auto _ : state) {
    auto station = folder.Start();
    OpenRandom(*station);
    ChooseTodaysTemplate(*station);
    PressStart(*station);
    station->time().Advance(std::chrono::hours(48));
    day_2 = ResidentMebibytes();
    station->time().Advance(std::chrono::hours(5 * 24));
    state.counters["growth_MiB"] = ResidentMebibytes() - day_2;
  }
  state.counters["MiB"] = day_2;
  state.counters["s_per_day"] = benchmark::Counter(static_cast<double>(state.iterations()) * 7,
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(VirtualWeek)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quixair::bench
