#pragma once

// The day's plan of Random playback: which template is in use, and when one of its stop sets is due. With
// stop sets on, the operator chooses a template before the run; at every tick its times are compared with
// the clock, and a match makes the set due: SequencingEngine plays it when the item on the air ends. A daily
// template gives way to the next day's at midnight; a template that is missing, or of another day, is told in
// large letters, and random playback goes on without stop sets.
//
// Times are met on the minute. A set whose minute goes by while the air is paused, or is skipped by the clock
// in spring, is passed over and stays unmarked; a row that had its turn is marked, so that an hour which
// comes twice does not play it twice.

#include <cstdint>
#include <string>

#include "station/onair/on_air_status.h"
#include "station/platform/clock.h"
#include "station/templates/template_choice.h"

namespace quixair {

struct RandomContext;

class DayScheduler {
 public:
  explicit DayScheduler(RandomContext& context);

  /// The screen loads anew: the operator will be asked once more.
  void Reset();
  /// Asks the operator for a template, unless he was asked since the last Reset. `restarted`: a power cut's run
  /// goes on, with a template of its own.
  void PrepareTemplateChoice(bool restarted);
  /// The frame's lists, read anew.
  void ShowLists();
  /// What the status line says of a load that is through: the choice is waited for, or the run can begin.
  void TellReady();
  /// Puts a template of C:\QXTEMPLT in force, as the operator does who chooses it.
  void TakeTemplate(const std::string& name);

  // at every tick
  void ChangeAtMidnight();
  void Scan();

  /// For the front end: what the scheduler is up to.
  StopSetStatus status() const;

 private:
  void Choose(const ChosenTemplate& chosen);
  void TellChosen();
  void DeclineChoice();
  void LoadSatTemp();
  void TellMissing();
  void ShowRows();
  bool TellWrongDay(const CivilTime& now);
  bool DayHasChanged(const CivilTime& now);
  void BeginDayOfCustomTemplate();
  void MakeDue(int row);
  StopSetState state(const CivilTime& now) const;

  RandomContext& context_;
  TemplateChoice choice_;
  bool choice_prepared_ = false;
  bool template_load_failed_ = false;
  std::int64_t last_day_ = 0;  // of the latest tick, as a number; 0 before the first
};

}  // namespace quixair
