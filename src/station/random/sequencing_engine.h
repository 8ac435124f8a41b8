#pragma once

// The heart of Random playback: PlayNextItem decides what plays next and starts it. It runs whenever a
// channel has finished and after the operator's Start, Continue and Begin Next.
//
// When an item is refused (a spot out of its dates, an audio file that is empty) the step calls itself for a
// replacement and then goes on with its own remaining statements, as a plain call does: the replacement is on
// the air, and the refused item still overwrites the labels and stands in the verification log. That is
// wanted; a reviewer should expect it. The nesting is bounded: when nothing can be opened at all, the
// innermost call returns at once and the watcher tries again at its later ticks.

#include <optional>
#include <string>

#include "station/onair/air_item.h"
#include "station/random/item_selection.h"

namespace quixair {

struct RandomContext;
struct StopSetRow;

class SequencingEngine {
 public:
  static constexpr int kMaxNestedSteps = 25;

  explicit SequencingEngine(RandomContext& context);
  void PlayNextItem();

 private:
  void Step();
  void RememberLastItem();
  bool TakeLegalId(WorkingItem& item);
  void StartItem(const WorkingItem& item, ItemOrigin origin);

  void CheckSpot(const WorkingItem& item);
  /// Why a spot's dates keep it off the air today, when the check is on; none for any other kind.
  std::optional<std::string> RefusalOfSpot(const std::string& id);
  void Refuse(const std::string& row);
  void ShowHint(const WorkingItem& item);
  void ShowItem(const WorkingItem& item);
  AirItem AirItemOf(const WorkingItem& item, ItemOrigin origin) const;
  bool StartOnFreeChannel(const AirItem& item);
  bool BeginOrReplace(int channel, const AirItem& item);

  // stop_set_step.cpp
  void PlayStopSetRow();
  void PauseInStopSet(const StopSetRow& row);
  void AnnounceTime();
  void PlayStopSetRecording(int number);
  void ShowStopSetItem(const WorkingItem& item);
  void PlayOnFirst(const AirItem& item);

  RandomContext& context_;
  ItemSelection selection_;
  WorkingItem item_;      // what the last choice stood at; a choice may leave it as it is
  std::string shown_id_;  // of what the labels tell; empty for what is no recording
  std::string last_item_id_;
  int depth_ = 0;
};

/// The status text of a run; a stop set has its own.
std::string PlaybackText(bool stop_set);

}  // namespace quixair
