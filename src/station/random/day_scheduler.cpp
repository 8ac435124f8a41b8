#include "station/random/day_scheduler.h"

#include <algorithm>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"
#include "station/random/item_step.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"

namespace quixair {
namespace {

constexpr std::string_view kNoTemplate = "Null";
constexpr const char* kChooseText =
    "Select an Existing Template for Playback by Double Clicking or pressing <Enter>...";
constexpr std::int64_t kMillisecondsOfDay = 86400000;

std::string FourDigits(int number) {
  const std::string text = std::to_string(number);
  return std::string(text.size() < 4 ? 4 - text.size() : 0, '0') + text;
}

bool IsDailyName(std::string_view template_name) {
  return KindOfTemplate(template_name) == TemplateKind::kSatDaily;
}

/// "MON" of "Mon.tpd", and of a Monday.
std::string DayOf(std::string_view template_name) {
  return UpperCased(template_name.substr(0, 3));
}
std::string DayOf(const CivilTime& now) {
  return UpperCased(DayName(now));
}

bool IsOfAnotherDay(std::string_view template_name, const CivilTime& now) {
  return IsDailyName(template_name) && DayOf(template_name) != DayOf(now);
}

}  // namespace

DayScheduler::DayScheduler(RandomContext& context)
    : context_(context), choice_(context.screen.File1, context.screen.File2, context.screen.Done) {
  choice_.on_choose = [this](const ChosenTemplate& chosen) { Choose(chosen); };
  context.screen.Quit.on_click = [this] { DeclineChoice(); };
}

void DayScheduler::Reset() {
  choice_prepared_ = false;
}

void DayScheduler::PrepareTemplateChoice(bool restarted) {
  if (choice_prepared_) return;
  RandomForm1& screen = context_.screen;
  RandomRun& run = context_.run;
  if (!context_.air.deck.running()) {  // on the air the line tells the air; the frame speaks for itself
    context_.air.status.Tell(restarted ? "A problem occured and your system has been restarted..."
                                       : kChooseText);
  }
  screen.Start.Disable();
  ShowLists();
  if (run.TemplateName.empty()) {
    screen.Frame2.Show();
    screen.File2.SetFocus();
  }
  choice_prepared_ = true;
  run.TemplateName =
      ReadSetting(context_.platform.files, station_paths::kRandomTemplate).value_or(std::string());
}

void DayScheduler::TellReady() {
  const bool waits = context_.screen.Frame2.visible();
  context_.air.status.Tell(waits ? kChooseText : status_text::kReady);
}

void DayScheduler::ShowLists() {
  ShowTemplates(context_.screen.File1, "*.TPL");
  ShowTemplates(context_.screen.File2, "*.TPD");
  choice_.Reset();
}

void DayScheduler::Choose(const ChosenTemplate& chosen) {
  if (chosen.way == ChosenTemplate::Way::kDoubleClick) {
    SkipAndGoOn(WriteNumberSetting(context_.platform.files, station_paths::kSatCorrection, 0));
  }
  TakeTemplate(chosen.name);
  TellChosen();
}

/// On the air too a template can be chosen: the record of the run then names it, for a power cut to come.
void DayScheduler::TellChosen() {
  const bool running = context_.air.deck.running();
  context_.air.status.Tell(running ? PlaybackText(context_.run.StopSetActive) : status_text::kReady);
  if (running) {
    SkipAndGoOn(WriteRunningRecord(context_.platform.files, kRandomMode, context_.run.TemplateName));
  }
}

void DayScheduler::TakeTemplate(const std::string& name) {
  RandomForm1& screen = context_.screen;
  context_.run.TemplateName = name;
  SkipAndGoOn(context_.platform.files.Write(station_paths::kRandomTemplate,
                                            WriteForm().Text(name).Text("1").Number(0).bytes(),
                                            Durability::kFlushed));
  screen.Frame2.Hide();
  screen.Start.Enable();
  screen.Command4.Enable();
  LoadSatTemp();
}

void DayScheduler::DeclineChoice() {
  RandomForm1& screen = context_.screen;
  context_.platform.dialogs.MessageBox(
      "Playback will be possible, but there will be no \nStop-Set files played in the rotation...",
      box_style::kOk, "No File Selected");
  context_.run.TemplateName = kNoTemplate;
  SkipAndGoOn(WriteTextSetting(context_.platform.files, station_paths::kRandomTemplate, kNoTemplate));
  screen.Frame2.Hide();
  screen.Start.Enable();
  screen.Command4.Enable();
  LoadSatTemp();
  TellChosen();
}

void DayScheduler::LoadSatTemp() {
  RandomForm1& screen = context_.screen;
  RandomRun& run = context_.run;
  run.StopSetActive = false;
  run.StopSetIndex = 0;
  screen.List7.Clear();
  screen.List1.Clear();
  screen.List7.AddRow("--Stop-Set Rotation List--");
  screen.Label8.SetCaption(run.TemplateName);
  const std::string path = station_paths::TemplateFile(run.TemplateName);
  const Result<std::string> content = context_.platform.files.Read(path);
  template_load_failed_ = !content.ok();
  if (template_load_failed_) {
    context_.stop_sets = StopSetList();
    TellMissing();
    return;
  }
  context_.stop_sets = StopSetList::Load(context_.platform.files, content.value());
  ShowRows();
  screen.Label9.Hide();
  TellWrongDay(context_.platform.clock.Now());  // before the run too: there is still time to choose another
}

void DayScheduler::TellMissing() {
  RandomForm1& screen = context_.screen;
  screen.Text7.Hide();
  screen.Label9.SetCaption(" NO SCHEDULED PLAYBACK WILL TAKE PLACE TODAY.  THE TEMPLATE " +
                           context_.run.TemplateName +
                           " WAS NOT FOUND. WAITING UNTIL MIDNIGHT TO LOAD NEXT DAY.  RANDOM PLAYBACK WILL "
                           "CONTINUE");
  screen.Label9.Show();
}

void DayScheduler::ShowRows() {
  RandomForm1& screen = context_.screen;
  const StopSetList& list = context_.stop_sets;
  for (int number = 1; number <= list.count(); ++number) {
    screen.List7.AddRow(list.row(number).EventId);
    screen.List1.AddRow(FourDigits(number) + ' ' + list.row(number).EventId);
  }
  // The clock never meets these, and nothing else would say so.
  for (const std::string& time : list.MistypedTimes()) {
    screen.List6.AddFault(time + " = Not a Time as 09:05 AM");
  }
}

/// The clock stands in the first minute of the day, or has come to a later day without passing it.
bool DayScheduler::DayHasChanged(const CivilTime& now) {
  const std::int64_t day = MillisecondsFromCivil(now) / kMillisecondsOfDay;
  const bool skipped_midnight = last_day_ != 0 && day > last_day_;
  if (skipped_midnight && !IsDailyName(context_.run.TemplateName)) BeginDayOfCustomTemplate();
  last_day_ = day;
  return skipped_midnight || (now.hour == 0 && now.minute == 0);
}

/// It stays in use, and its sets play each day.
void DayScheduler::BeginDayOfCustomTemplate() {
  StopSetList& list = context_.stop_sets;
  for (int number = 1; number <= list.count(); ++number) {
    list.row(number).marked = false;
    context_.screen.List7.SetRow(number, list.row(number).text());
  }
}

void DayScheduler::ChangeAtMidnight() {
  RandomRun& run = context_.run;
  const CivilTime now = context_.platform.clock.Now();
  if (!DayHasChanged(now) || !IsOfAnotherDay(run.TemplateName, now)) return;
  run.TemplateName = DayOf(now) + ".TPD";
  SkipAndGoOn(WriteRunningRecord(context_.platform.files, kRandomMode, run.TemplateName));
  context_.screen.Frame2.Hide();
  LoadSatTemp();
}

bool DayScheduler::TellWrongDay(const CivilTime& now) {
  RandomForm1& screen = context_.screen;
  const std::string& name = context_.run.TemplateName;
  if (!IsOfAnotherDay(name, now)) {
    if (!template_load_failed_) screen.Label9.Hide();
    return false;
  }
  screen.Text7.Show();
  screen.Text7.SetText("WAITING UNTIL MIDNIGHT");
  screen.Label9.Show();
  screen.Label9.SetCaption(
      " NO SCHEDULED PLAYBACK WILL TAKE PLACE TODAY. THE CURRENT DAY DOES NOT MATCH THE TEMPLATE IN USE.  "
      "TEMPLATE IN USE = " +
      DayOf(name) + ", WHILE TODAY = " + DayOf(now) +
      ". LOADING OF THE NEXT DAY WILL BE ATTEMPTED AT MIDNIGHT!");
  return true;
}

void DayScheduler::Scan() {
  const CivilTime now = context_.platform.clock.Now();
  if (context_.settings.BreakType != break_type::kScheduledStopSet || TellWrongDay(now)) return;
  const StopSetList& list = context_.stop_sets;
  if (list.count() == 0) return;
  if (!context_.run.StopSetActive) {
    context_.screen.Text7.Show();
    context_.screen.Text7.SetText("SCANNING STOP SETS");
  }
  const std::string time = HourMinuteAmPm(now);
  for (int number = 1; number <= list.count(); ++number) {
    const StopSetRow& row = list.row(number);
    if (!row.marked && row.EventId == time) MakeDue(number);  // and on: a later row of this minute wins
  }
}

void DayScheduler::MakeDue(int number) {
  RandomForm1& screen = context_.screen;
  StopSetRow& row = context_.stop_sets.row(number);
  screen.Text7.Show();
  screen.Text7.SetText(row.EventId + " Break Up Next");
  row.marked = true;
  screen.List7.SetRow(number, row.text());
  screen.List7.Select(number);
  context_.run.StopSetActive = true;
  context_.run.StopSetIndex = number;
}

StopSetState DayScheduler::state(const CivilTime& now) const {
  const RandomRun& run = context_.run;
  if (!choice_prepared_ || run.TemplateName == kNoTemplate) return StopSetState::kOff;
  if (context_.screen.Frame2.visible()) return StopSetState::kNotChosen;
  if (template_load_failed_) return StopSetState::kMissing;
  if (IsOfAnotherDay(run.TemplateName, now)) return StopSetState::kWrongDay;
  if (!run.StopSetActive) return StopSetState::kScanning;
  if (context_.air.deck.hold() == Hold::kPauseEvent) return StopSetState::kPaused;
  const bool at_its_time = context_.stop_sets.row(run.StopSetIndex).kind == EventKind::kLocalBreak;
  return at_its_time ? StopSetState::kDue : StopSetState::kPlaying;
}

StopSetStatus DayScheduler::status() const {
  const CivilTime now = context_.platform.clock.Now();
  const StopSetList& list = context_.stop_sets;
  StopSetStatus status;
  status.state = state(now);
  status.template_name = context_.run.TemplateName;
  status.set_count = list.set_count();
  status.total_seconds = list.TemplateSeconds();
  const int minute = now.hour * 60 + now.minute;
  if (const auto next = list.Next(minute)) {
    status.next_time = list.row(next->row).EventId;
    status.minutes_to_next = next->minute - minute;
  }
  const int override_seconds = context_.settings.PauseOverrideSecs;
  if (status.state == StopSetState::kPaused && override_seconds != 0) {
    status.override_seconds = std::max(0, override_seconds - static_cast<int>(context_.air.deck.elapsed()));
  }
  return status;
}

}  // namespace quixair
