#pragma once

// What plays on PickListForm1: the list, the state of the run, and those that act on them. The screen owns
// one of these.

#include <string>

#include "station/onair/air_fault_log.h"
#include "station/picklist/event_table.h"
#include "station/picklist/pick_list_controls.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_overlap.h"
#include "station/picklist/pick_list_watcher.h"
#include "station/platform/clock.h"
#include "station/platform/platform.h"

namespace quixair {

class PickListForm1;

/// The state of a run, shared by all parts; flags are 0 or 1. What Random playback has too bears the same
/// name.
struct PickListState {
  bool running = false;   // from Start to the end of the run
  bool run_over = false;  // the screen is on its way out: an outer step has nothing more to do
  bool live_now = false;  // the live break has begun
  int CurrentEvent = 1;   // the event in turn
  int FirstEvent = 0;     // where the run starts; 0 until chosen
  std::string TemplateName;
  std::string PikModeValue;
  int TotalSeconds = 0;
  int TotalAtLoad = 0;  // restored at a repeat
  double ProgramTimeSum = 0;
  double ProgramTimeNow = 0;
  double SecondsRemaining = 0;
  double ElapsedSecs = 0;
  SteadyTime ItemStartTimer{};
  SteadyTime TickTimer{};  // of the latest tick
  SteadyTime PauseStartedAt{};
  int RepeatOn = 0;
  int AutoRestarted = 0;
  int NextDayLoad = 0;  // a daily template gives way to the next day's
  int ScreenActivated = 0;
  int ActiveChannel = 1;  // 1, 2, or 99 while channel 1 is being closed after an overlap
  int OverlapActive = 0;
  int OverlapHandBack = 0;
  int LiveRequested = 0;
  int AudioPaused = 0;
  int PauseNextPending = 0;
  int RequeuePending = 0;
  int BeganNext = 0;
  int SkipSumming = 0;  // the time of a skipped item is in the sum already
  int ExpiredSkipCount = 0;
};

struct PickListContext {
  PickListForm1& screen;
  const Platform& platform;
  EventTable events;
  PickListState state;
  AirFaultLog faults;

  const std::string& current_id() const { return events.event(state.CurrentEvent).EventId; }
};

class PickListPlayback {
 public:
  explicit PickListPlayback(PickListForm1& screen);

  /// ActivatePickList: loads the list when the screen comes up, and again when a daily template gives way to
  /// the next. Starts by itself after a power cut and at a change of the day.
  /// False when there is no such file at a change of the day.
  bool Activate();
  void EndRun() { controls_.EndRun(); }
  const PickListContext& context() const { return context_; }

 private:
  void ConnectControls();
  void ConnectSettings();
  void TakeRestartRecord();
  void PrepareScreen();
  bool ReadList();
  void TellFault(const Status& fault);
  bool Unattended() const;
  void FillLists();
  void StartByItself();
  void ToggleCover();

  PickListContext context_;
  PickListEngine engine_;
  PickListControls controls_;
  PickListWatcher watcher_;
  PickListOverlap overlap_;
};

}  // namespace quixair
