#pragma once

// The part of the sequencing step that plays the day's stop sets: one row of the set in play per call. A row that
// cannot be played hands over to the next one and ends there: the rows are told by their number, which has moved
// on by then, and going on would show, and at the end of a set even play, what was refused.

#include <functional>

#include "station/onair/air_item.h"
#include "station/random/item_selection.h"

namespace quixair {

struct RandomContext;
struct StopSetRow;

class StopSetStep {
 public:
  /// `play_next` is the sequencing step.
  StopSetStep(RandomContext& context, std::function<void()> play_next)
      : context_(context), play_next_(std::move(play_next)) {}

  /// Ends the set at the next time of the day or behind the last row.
  void PlayNextRow();

 private:
  void PauseAt(const StopSetRow& row);
  void AnnounceTime();
  void PlayRecording(int number);
  void Show(const WorkingItem& item, const std::string& id);
  void PlayOnFirst(const AirItem& item);

  RandomContext& context_;
  std::function<void()> play_next_;
};

}  // namespace quixair
