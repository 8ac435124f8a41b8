#include "station/onair/start_time_frame.h"

#include <chrono>
#include <utility>

#include "station/platform/dialogs.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kStartTimeTick{500};

std::string TwoDigits(int number) {
  std::string text = std::to_string(number);
  return text.size() < 2 ? '0' + text : text;
}

}  // namespace

void FillStartTimeLists(ListBox& hours, ListBox& minutes, ListBox& halves) {
  for (ListBox* list : {&hours, &minutes, &halves}) list->Clear();
  for (int hour = 1; hour <= 12; ++hour) hours.AddRow(TwoDigits(hour));
  for (int minute = 0; minute <= 59; ++minute) minutes.AddRow(TwoDigits(minute));
  halves.AddRow("AM");
  halves.AddRow("PM");
}

std::string ChosenStartTime(const ListBox& hours, const ListBox& minutes, const ListBox& halves) {
  return hours.selected_text() + ':' + minutes.selected_text() + ' ' + halves.selected_text();
}

StartTimeFrame::StartTimeFrame(Screen& owner, Label& shown, Timer& start_timer, std::string when_cancelled)
    : TimeFrame2(owner, "TimeFrame2", "Set Start Time"),
      TimeLabel5(TimeFrame2, "TimeLabel5",
                 "Enter the time for startup HH:MM A/P.          Click the Done Button to Activate."),
      TimeList1(TimeFrame2, "TimeList1"),
      TimeList2(TimeFrame2, "TimeList2"),
      TimeList3(TimeFrame2, "TimeList3"),
      TimeLabel6(TimeFrame2, "TimeLabel6", "Selected = "),
      TimeCommand1(TimeFrame2, "TimeCommand1", "&Done"),
      TimeCommand2(TimeFrame2, "TimeCommand2", "&Cancel"),
      shown_(shown),
      start_timer_(start_timer),
      when_cancelled_(std::move(when_cancelled)) {
  TimeFrame2.Hide();
  for (ListBox* list : {&TimeList1, &TimeList2, &TimeList3}) list->on_click = [this] { Choose(); };
  TimeCommand1.on_click = [this] { Done(); };
  TimeCommand2.on_click = [this] { Cancel(); };
}

void StartTimeFrame::OpenFrame() {
  if (TimeFrame2.visible()) return;
  FillStartTimeLists(TimeList1, TimeList2, TimeList3);
  TimeFrame2.Show();
}

bool StartTimeFrame::IsDue(const std::string& hour_minute_am_pm) const {
  return start_time_ == hour_minute_am_pm;
}

/// A list touched in passing does not take away the time that is set.
void StartTimeFrame::Choose() {
  const std::string chosen = ChosenStartTime(TimeList1, TimeList2, TimeList3);
  if (chosen.size() != kStartTimeLength) return;
  chosen_ = chosen;
  TimeLabel6.SetCaption("Selected = " + chosen_);
}

void StartTimeFrame::Done() {
  if (chosen_.empty()) {
    TimeFrame2.screen().platform().dialogs.MessageBox(kStartTimeIncomplete, box_style::kOk, "Quixair");
    return;
  }
  start_time_ = chosen_;
  shown_.SetCaption("Start Time = " + start_time_);
  start_timer_.SetInterval(kStartTimeTick);
  start_timer_.SetEnabled(true);
  CloseFrame();
}

void StartTimeFrame::Cancel() {
  start_time_.clear();
  shown_.SetCaption(when_cancelled_);
  CloseFrame();
}

void StartTimeFrame::CloseFrame() {
  TimeFrame2.Hide();
  chosen_.clear();
  for (ListBox* list : {&TimeList1, &TimeList2, &TimeList3}) list->Clear();
  TimeLabel6.SetCaption("Selected = ");
}

}  // namespace quixair
