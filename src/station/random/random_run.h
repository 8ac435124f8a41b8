#pragma once

// The state of a run of Random playback, and what its parts share. Every part is handed the context by reference
// and owns nothing of it; RandomPlayback makes them all.

#include <string>

#include "station/onair/on_air.h"
#include "station/onair/proof_of_airing.h"
#include "station/platform/platform.h"
#include "station/random/random_settings.h"
#include "station/random/rotation_pools.h"
#include "station/random/rotation_state.h"
#include "station/random/stop_set_list.h"

namespace quixair {

class RandomForm1;

struct RandomRun {
  bool StopSetActive = false;  // the next step belongs to the day's stop sets
  int StopSetIndex = 0;        // row of the set's time, then of the item in play
  int event_counter = 1;       // only counts in this mode
  int first_event = 0;
  std::string shown_id;      // of the recording that the labels tell; empty for what is none
  std::string TemplateName;  // "MON.TPD", a custom name, or "Null" when the operator declined
};

struct RandomContext {
  RandomForm1& screen;
  const Platform& platform;
  OnAir air;
  ProofOfAiring proof;
  RandomSettings settings;
  RotationPools pools;
  RotationState rotation;
  StopSetList stop_sets;
  RandomRun run;
};

}  // namespace quixair
