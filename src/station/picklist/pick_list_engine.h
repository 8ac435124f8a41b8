#pragma once

// The heart of Pick-List playback: PlayNextEvent plays the event in turn. Where Random chooses, this only
// counts: who calls it has moved CurrentEvent on.
//
// The step calls itself: for an event that cannot be played, at the change of the day. The inner call is a
// plain one: when it returns, the outer one goes on with the statements behind it, on the event that the
// inner call left in turn. The replacement is on the air by then, so the outer one opens nothing; it sets the
// labels again and may write a second line of proof. That is wanted; a reviewer should expect it. What is not
// wanted, a stack without end when nothing of a repeated list can be played, is bounded: the innermost call
// returns at once and the watcher goes on at its next tick.
//
// Unlike in Random playback no fault is skipped here: what cannot be written ends the program with a box.

#include <functional>
#include <optional>
#include <string>

#include "station/onair/air_item.h"
#include "station/platform/clock.h"

namespace quixair {

struct PickListContext;

class PickListEngine {
 public:
  /// More than the 150 spots in a row that may be out of their dates.
  static constexpr int kMaxNestedSteps = 200;
  /// With what cannot be done now: gone drives come back.
  static constexpr double kSecondsUntilGoingOn = 1;

  explicit PickListEngine(PickListContext& context) : context_(context) {}

  void PlayNextEvent();
  /// At every tick: goes on with what a bounded step or the search for the next day's template left.
  void GoOnWhereLeft();
  /// At a local break, or between rounds of a list in which nothing may play: silence is told, and meant.
  bool WaitsForOperator() const;
  /// Closes the list: its hand-over files, the record of the run, the screen.
  void EndOfRun();
  /// `wide`: the seconds in the form "00.00".
  void ShowRemaining(bool wide = false);

  /// ActivatePickList, for the change of the day.
  std::function<bool()> activate;

 private:
  void Step();
  void AddUpTime();
  bool PassListEnd();
  void ShowLabels();
  void ShowNextUp();
  void ShowLast();
  void WriteRecord();
  void CheckSpot();
  std::optional<std::string> RefusalByDates(const std::string& id) const;
  void CheckDate(const std::string& id, const char* field, const std::string& date) const;
  void PassOverSpot();
  bool AnnounceTime();
  enum class Started { kBegun, kNothing, kStepEnds };
  Started StartItem();
  bool StartOnFirst();
  bool StartOnSecond();
  void CorrectForOverlap();
  AirItem ItemInTurn() const;
  void ProveAgain() const;
  void LeaveOutEmpty();

  // day_change.cpp
  bool ChangeDay();
  bool FindNextDay();
  void TellNotFound();
  void LeaveStep(double seconds = kSecondsUntilGoingOn);

  PickListContext& context_;
  int depth_ = 0;
  bool step_left_ = false;  // for a later tick
  SteadyTime left_at_{};
  double go_on_after_ = 0;  // seconds from then
};

/// The status text of a run.
std::string PickListPlaybackText();

}  // namespace quixair
