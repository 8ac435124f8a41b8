#pragma once

// The heart of Random playback: PlayNextItem decides what plays next and starts it. It runs whenever a
// channel has finished and after the operator's Start, Continue and Begin Next.
//
// When an item is refused (a spot out of its dates, an audio file that is empty) the step calls itself for a
// replacement and then goes on with its own remaining statements, as a plain call does: the replacement is on
// the air, and the refused item still overwrites the labels and stands in the verification log. That is
// wanted; a reviewer should expect it. The nesting is bounded: when nothing can be opened at all, the
// innermost call returns at once and the watcher tries again at its later ticks.

#include <string>

#include "station/onair/air_item.h"
#include "station/random/item_selection.h"
#include "station/random/stop_set_step.h"

namespace quixair {

struct RandomContext;

class SequencingEngine {
 public:
  static constexpr int kMaxNestedSteps = 25;
  /// Of one call in all: a step may call itself twice, for a spot without its data file and then without audio.
  static constexpr int kMaxSteps = 2 * kMaxNestedSteps;

  explicit SequencingEngine(RandomContext& context);
  void PlayNextItem();

 private:
  void Step();
  void RememberLastItem();
  bool TakeLegalId(WorkingItem& item);
  void StartItem(const WorkingItem& item, ItemOrigin origin);

  void CheckSpot(const WorkingItem& item);
  void ShowHint(const WorkingItem& item);
  bool StartOnFreeChannel(const AirItem& item);
  bool BeginOrReplace(int channel, const AirItem& item);

  RandomContext& context_;
  ItemSelection selection_;
  StopSetStep stop_set_step_;
  WorkingItem item_;  // what the last choice stood at; a choice may leave it as it is
  std::string last_item_id_;
  int depth_ = 0;
  int steps_ = 0;
};

}  // namespace quixair
