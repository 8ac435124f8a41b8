#include "station/recording/auto_time.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"
#include "station/recording/audition.h"

namespace quixair {
namespace {

constexpr std::size_t kNameLength = 9;  // T0122.WAV
constexpr int kHours = 12;
constexpr int kMinutes = 60;

/// What AutoTime hands over in TIMERECORD.DTA, and finds again when it is opened the next time.
struct TimeRequest {
  std::string name, hour, minute;
};

TimeRequest ReadTimeRequest(Files& files) {
  std::vector<std::string> values =
      ReadValues(files.Read(station_paths::kTimeRecord).value_or(std::string()), 3);
  values.resize(3);
  return {values[0], values[1], values[2]};
}

Status WriteTimeRequest(Files& files, const TimeRequest& request) {
  return files.Write(station_paths::kTimeRecord,
                     WriteForm().Text(request.name).Text(request.hour).Text(request.minute).bytes());
}

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

void SelectText(ListBox& list, const std::string& text) {
  for (int row = 0; row < list.row_count(); ++row) {
    if (list.row(row) == text) list.Select(row);
  }
}

}  // namespace

AutoTime::AutoTime(const Platform& platform)
    : Screen(platform, "AutoTime", "AutoTime Record"), MMControl1(*this, "MMControl1", kAuditionChannel) {
  for (int hour = 1; hour <= kHours; ++hour) List1.AddRow(TwoDigits(hour));
  for (int minute = 0; minute < kMinutes; ++minute) List2.AddRow(TwoDigits(minute));
  List1.on_click = List2.on_click = [this] { FormName(); };
  File1.on_double_click = File1.on_enter = [this] { TakeFromList(); };
  Command1.on_click = [this] { Record(); };
  Command2.on_click = [this] { CloseWindow(); };
  Command3.on_click = [this] { Audition(); };
  Command4.on_click = [this] {
    StopPlaying();
    Load();
    File1.SetHint("Double Click to Audition");
  };
  PlayByHand(MMControl1);
  File1.SetHint("Double Click to Re-Record Existing");
}

void AutoTime::Load() {
  auditioning_ = false;
  EnableChoices(true);
  MMControl1.Disable();
  File1.SetPattern("t*.WAV");
  File1.SetPath("c:\\qxtime");
  const TimeRequest last = ReadTimeRequest(platform_.files);
  SelectText(List1, last.hour);
  SelectText(List2, last.minute);
  if (List1.selected_index() >= 0 && List2.selected_index() >= 0) FormName();
  Text1.SetText("Select a Time to Record, Hour first, then Minute");
  List1.SetFocus();
}

void AutoTime::CloseWindow() {
  StopPlaying();
  Unload();
}

void AutoTime::FormName() {
  ShowName("T" + List1.selected_text() + List2.selected_text() + ".WAV");
}

void AutoTime::ShowName(const std::string& name) {
  name_ = name;
  Label4.SetCaption("Recording Name = " + name);
}

void AutoTime::TakeFromList() {
  if (File1.selected_index() < 0) return;
  ShowName(File1.selected_text());
  if (auditioning_) {
    Play();
  } else {
    Record();
  }
}

void AutoTime::Record() {
  if (name_.size() != kNameLength) {
    platform_.dialogs.MessageBox(
        "You must choose an hour and minute to record.\nFor example, selecting Hour 01 and Min. 22 will\n"
        "make a time recording for 01:22 AM or PM.",
        box_style::kCritical, "Invalid Time");
    return;
  }
  if (IsCapturing(platform_, "RecordTimes")) return;
  const Status written =
      WriteTimeRequest(platform_.files, {name_, List1.selected_text(), List2.selected_text()});
  if (!written.ok()) {
    TellFileFault(platform_.dialogs, written, "The announcement cannot be recorded.");
    return;
  }
  platform_.screens.Open("RecordTimes");
  CloseWindow();
}

void AutoTime::Audition() {
  auditioning_ = true;
  EnableChoices(false);
  Text1.SetText("Double Click an Existing File To Audition");
  File1.SetFocus();
}

void AutoTime::Play() {
  MMControl1.Enable();
  MMControl1.Command(ChannelCommand::kClose);
  MMControl1.SetFileName(std::string(station_paths::kTimeFolder) + '\\' + name_);
  MMControl1.Command(ChannelCommand::kOpen);
  Text1.SetText("Length = " + ShortestSeconds(MMControl1.Length()) + "  [Press DONE to re-start]");
  MMControl1.Command(ChannelCommand::kPlay);
}

void AutoTime::StopPlaying() {
  MMControl1.Command(ChannelCommand::kClose);
}

void AutoTime::EnableChoices(bool enabled) {
  for (Control* choice : std::initializer_list<Control*>{&List1, &List2, &Command1, &Command2, &Command3}) {
    choice->Enable(enabled);
  }
}

RecordTimes::RecordTimes(const Platform& platform) : Screen(platform, "RecordTimes", "Time Record") {
  Text2.SetMaxLength(static_cast<int>(kNameLength));
  recorder.NowExit.on_click = [this] { BackToChoice(); };
  recorder.CancelButton.on_click = [this] { Erase(); };
}

void RecordTimes::Load() {
  const TimeRequest request = ReadTimeRequest(platform_.files);
  Text2.SetText(request.name);
  Label4.SetCaption(request.hour + ":" + request.minute);
  recorder.path = std::string(station_paths::kTimeFolder) + '\\' + request.name;
  recorder.Prepare();
  recorder.RecordBtn.SetFocus();
}

void RecordTimes::PrepareAgain(const ScreenOpening&) {
  if (!recorder.capturing()) Load();
}

void RecordTimes::CloseWindow() {
  if (recorder.capturing()) recorder.Finish(Ending::kByOperator);
  Unload();
}

void RecordTimes::Erase() {
  if (!recorder.EraseConfirmed(Text2.text())) return;
  SkipAndGoOn(platform_.files.Delete(recorder.path));
  BackToChoice();
}

void RecordTimes::BackToChoice() {
  platform_.screens.Open("AutoTime");
  CloseWindow();
}

}  // namespace quixair
