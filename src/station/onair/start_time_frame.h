#pragma once

// The frame in which an operator sets the time of day at which a run starts by itself. Both playback screens
// have one; they differ in what they show when no time is set.

#include <functional>
#include <string>

#include "station/screen/controls.h"

namespace quixair {

class StartTimeFrame {
 public:
  /// `owner` is the playback screen; `shown` the label on it that tells the time set, `when_cancelled` its
  /// text for none.
  StartTimeFrame(Screen& owner, Label& shown, Timer& start_timer, std::string when_cancelled);

  Frame TimeFrame2;
  Label TimeLabel5;     // what to do
  ListBox TimeList1;    // hours "01" to "12"
  ListBox TimeList2;    // minutes "00" to "59"
  ListBox TimeList3;    // "AM", "PM"
  Label TimeLabel6;     // "Selected = " and the time
  Button TimeCommand1;  // "&Done"
  Button TimeCommand2;  // "&Cancel"

  /// Shows the frame with its lists filled; does nothing when it is open.
  void OpenFrame();
  /// Without a choice; the time set stays.
  void CloseFrame();
  /// True in the minute that was set. A time that has passed waits till the same time tomorrow.
  bool IsDue(const std::string& hour_minute_am_pm) const;

 private:
  void Choose();
  void Done();
  void Cancel();

  Label& shown_;
  Timer& start_timer_;
  std::string when_cancelled_;
  std::string start_time_;
  std::string chosen_;  // while the frame is open; empty until all three lists have a choice
};

/// Fills the three lists of a start time chooser.
void FillStartTimeLists(ListBox& hours, ListBox& minutes, ListBox& halves);
/// "hh:mm AM" from what is selected in them; shorter while one of them has no selection.
std::string ChosenStartTime(const ListBox& hours, const ListBox& minutes, const ListBox& halves);
inline constexpr std::size_t kStartTimeLength = 8;  // of a complete choice
inline constexpr const char* kStartTimeIncomplete = "You must highlight the hour, minute, and AM or PM";

}  // namespace quixair
