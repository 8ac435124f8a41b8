#pragma once

// What plays on RandomForm1: its library in pools, the state of the run, and those that act on it:
// SequencingEngine decides and starts items, ChannelWatcher notices that they end, OverlapWatcher that they
// are about to, DayScheduler that a stop set is due, RunControls is the operator. The screen owns one of these.

#include <string>

#include "station/onair/air_fault_log.h"
#include "station/platform/clock.h"
#include "station/platform/platform.h"
#include "station/random/channel_watcher.h"
#include "station/random/day_scheduler.h"
#include "station/random/item_selection.h"
#include "station/random/overlap_watcher.h"
#include "station/random/random_settings.h"
#include "station/random/rotation_pools.h"
#include "station/random/rotation_state.h"
#include "station/random/run_controls.h"
#include "station/random/sequencing_engine.h"
#include "station/random/stop_set_list.h"

namespace quixair {

class RandomForm1;

/// The flags of a run, 0 or 1 where no more is said.
struct RunState {
  bool running = false;  // from Start to the end of the run
  int begin_next = 0;
  int LiveRequested = 0;
  bool live_now = false;  // the request has taken effect: silent until Continue
  int AudioPaused = 0;
  int PauseNextPending = 0;  // the next tick pauses the item that has just begun
  int requeue = 0;
  int ActiveChannel = 1;  // 1, 2, or 99 while channel 1 is being closed after an overlap
  int OverlapActive = 0;
  int OverlapHandBack = 0;             // channel 2 finishes, channel 1 has the next item
  int StopSetActive = 0;               // the next step belongs to the day's stop sets
  int StopSetIndex = 0;                // row of the set's time, then of the item in play
  bool override_outlives_set = false;  // a pause in a set that the change of the day took away
  int event_counter = 1;               // only counts in this mode
  int first_event = 0;
  SteadyTime ItemStartTimer{};
  SteadyTime pause_started{};
  double ElapsedSecs = 0;
  int RestartPending = 0;    // the load found the record of a run that a power cut ended
  std::string TemplateName;  // "MON.TPD", a custom name, or "Null" when the operator declined
};

/// What the parts of the playback share.
struct RandomContext {
  RandomForm1& screen;
  const Platform& platform;
  RandomSettings settings;
  RotationPools pools;
  RotationState rotation;
  StopSetList stop_sets;
  RunState run;
  AirFaultLog faults;
};

class RandomPlayback {
 public:
  explicit RandomPlayback(RandomForm1& screen);

  /// The screen's load, in its fixed order; also run again by "&Refresh". Ends the program when the library
  /// is too small.
  void Load();
  /// Ends the run, or quits before one, and takes the screen away.
  void Leave();
  const RandomContext& context() const { return context_; }
  const DayScheduler& scheduler() const { return scheduler_; }

 private:
  void ConnectControls();
  void PrepareScreen();
  bool LoadMusic();
  void LoadLiners();
  void LoadLegalIds();
  /// `at_load`: a running restart record is acted upon only when the screen loads, not at the later
  /// refreshes.
  void LoadStatus(bool at_load);
  void ReadSettings();
  void AnnounceRestart();
  void LoadSpotRotation();
  /// A count and what it counts, as often as an eye can follow.
  void ShowProgress(int count, const char* what);
  void ShowPoolRow(const std::string& mark, const PoolRow& row);

  RandomContext context_;
  SequencingEngine engine_;
  RunControls controls_;
  DayScheduler scheduler_;
  ChannelWatcher watcher_;
  OverlapWatcher overlap_;
  bool rotation_missing_ = false;  // breaks stay off until the next load
  SteadyTime last_progress_{};
};

}  // namespace quixair
