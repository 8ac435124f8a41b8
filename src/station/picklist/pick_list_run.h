#pragma once

// The state of a run of Pick-List playback, and what its parts share. Every part is handed the context by
// reference and owns nothing of it; PickListPlayback makes them all.

#include <string>

#include "station/onair/on_air.h"
#include "station/onair/proof_of_airing.h"
#include "station/picklist/event_table.h"
#include "station/platform/platform.h"

namespace quixair {

class PickListForm1;

struct PickListRun {
  bool run_over = false;  // the screen is on its way out: an outer step has nothing more to do
  std::string TemplateName;
  std::string PikModeValue;
  bool RepeatOn = false;
  bool ScreenActivated = false;
  bool AutoRestarted = false;
  bool NextDayLoad = false;  // a daily template gives way to the next day's

  int CurrentEvent = 1;  // the event in turn
  int FirstEvent = 0;    // where the run starts; 0 until chosen
  int ExpiredSkipCount = 0;

  // the times that the screen tells, in seconds
  int TotalSeconds = 0;
  int TotalAtLoad = 0;        // restored at a repeat
  double ProgramTimeSum = 0;  // of the items before the one in turn
  double ProgramTimeNow = 0;
  double SecondsRemaining = 0;
  double ElapsedSecs = 0;    // of the item in turn, at the latest tick
  bool SkipSumming = false;  // the time of a skipped item is in the sum already
};

struct PickListContext {
  PickListForm1& screen;
  const Platform& platform;
  OnAir air;
  ProofOfAiring proof;
  EventTable events;
  PickListRun run;

  const std::string& current_id() const { return events.event(run.CurrentEvent).EventId; }
};

}  // namespace quixair
