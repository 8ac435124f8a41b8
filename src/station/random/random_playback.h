#pragma once

// What plays on RandomForm1: its library in pools, the state of the run, and those that act on it:
// SequencingEngine decides and starts items, ChannelWatcher notices that they end, OverlapWatcher that they
// are about to, DayScheduler that a stop set is due, RunControls is the operator. The screen owns one of these.

#include <string>
#include <utility>
#include <vector>

#include "station/random/channel_watcher.h"
#include "station/random/day_scheduler.h"
#include "station/random/overlap_watcher.h"
#include "station/random/random_run.h"
#include "station/random/run_controls.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

class RandomPlayback {
 public:
  explicit RandomPlayback(RandomForm1& screen);

  /// The screen's load, in its fixed order; also run again by "&Refresh". Ends the program when the library
  /// is too small.
  void Load();
  /// Ends the run, or quits before one, and takes the screen away.
  void Leave();
  void ProgramEnds() { context_.air.deck.EndAll(EndCause::kProgramEnds); }
  bool running() const { return context_.air.deck.running(); }
  OnAirStatus status() const;
  const DayScheduler& scheduler() const { return scheduler_; }

 private:
  void ConnectControls();
  void PrepareScreen();
  bool LoadMusic();
  bool LoadLiners();
  bool LoadLegalIds();
  bool RunsDry(const std::vector<std::string>& ids, int count);
  /// `at_load`: a running restart record is acted upon only when the screen loads, not at the later
  /// refreshes.
  void LoadStatus(bool at_load);
  void ReadSettings();
  void AnnounceRestart();
  void LoadSpotRotation();
  /// A count and what it counts, as often as an eye can follow.
  void ShowProgress(int count, const char* what);
  void ShowPoolRow(const std::string& mark, const PoolRow& row);
  void ShowPools();

  RandomContext context_;
  SequencingEngine engine_;
  RunControls controls_;
  DayScheduler scheduler_;
  ChannelWatcher watcher_;
  OverlapWatcher overlap_;
  std::vector<std::pair<std::string, std::string>> shown_pools_;  // while they are loaded: id, row
  SteadyTime last_progress_{};
};

}  // namespace quixair
