#include "station/picklist/pick_list_engine.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "station/console/logs.h"
#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/picklist/lineup_totals.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_playback.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kChannelPollTick{190};  // Random polls at 210
constexpr std::chrono::milliseconds kOverlapTick{1000};
constexpr int kMostExpiredSkips = 150;
constexpr double kSecondsBetweenRounds = 30;  // of a repeated list in which nothing may play

using Rows = std::array<std::string, 3>;

Rows NextUpRows(const PickListEvent& event, bool length_may_lack) {
  const bool no_length = length_may_lack && event.EventLength.empty();
  const std::string minutes = FixedDecimals(NumericValue(event.EventLength) / 60, 2);
  return {' ' + event.EventId + "  " + event.EventField4,
          event.EventField5.empty() ? std::string() : ' ' + event.EventField5,
          no_length ? std::string("Len:  N/A") : " Len: " + event.EventLength + '(' + minutes + ')'};
}

void Show(std::array<Label, 3>& labels, const Rows& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) labels[row].SetCaption(rows[row]);
}

}  // namespace

void PickListEngine::PlayNextEvent() {
  if (context_.state.run_over) return;
  if (depth_ >= kMaxNestedSteps) {
    LeaveStep();
    return;
  }
  if (depth_ == 0) step_left_ = false;
  ++depth_;
  Step();
  --depth_;
}

void PickListEngine::GoOnWhereLeft() {
  if (!step_left_ || SecondsBetween(left_at_, context_.state.TickTimer) < go_on_after_) return;
  step_left_ = false;
  PlayNextEvent();
}

void PickListEngine::LeaveStep(double seconds) {
  step_left_ = true;
  go_on_after_ = seconds;
  left_at_ = context_.platform.clock.Steady();
}

void PickListEngine::Step() {
  PickListState& state = context_.state;
  AddUpTime();
  if (!PassListEnd()) return;
  if (state.LiveRequested == 1) {
    HoldForLive();
    return;
  }
  ShowLabels();
  WriteRecord();
  CheckSpot();
  if (state.run_over || step_left_) return;  // what was refused is not the outer step's to play
  state.ExpiredSkipCount = 0;
  if (IsPauseEvent(context_.current_id())) HoldAtPause();
  if (IsTimeEvent(context_.current_id()) && AnnounceTime()) return;
  if (state.run_over || !StartItem() || state.run_over) return;
  Verify();
  FinishStep();
}

void PickListEngine::AddUpTime() {
  PickListState& state = context_.state;
  if (state.SkipSumming != 1 && state.CurrentEvent > 1) state.ProgramTimeSum += state.ElapsedSecs;
}

/// False when the step has nothing more to do: the run is over, or the next day's template is yet to be found.
bool PickListEngine::PassListEnd() {
  PickListState& state = context_.state;
  if (state.CurrentEvent <= context_.events.EventCount()) return true;
  if (state.RepeatOn == 1) {
    state.CurrentEvent = 1;
    state.ProgramTimeNow = 0;
    state.TotalSeconds = state.TotalAtLoad;
    state.ProgramTimeSum = 0;
    return true;
  }
  if (KindOfTemplate(state.TemplateName) == TemplateKind::kPickDaily && !ChangeDay()) return false;
  if (state.run_over) return false;
  context_.screen.Channels.CloseAll();
  if (state.PikModeValue == "4" || state.NextDayLoad != 1) {
    EndOfRun();
    return false;
  }
  state.NextDayLoad = 0;
  return true;
}

void PickListEngine::EndOfRun() {
  PickListState& state = context_.state;
  Files& files = context_.platform.files;
  OrEndProgram(WriteTextSetting(files, station_paths::kPickList, ""));
  OrEndProgram(WriteTextSetting(files, station_paths::kStorePik, ""));
  context_.screen.List3.Clear();
  if (state.PikModeValue == "4") context_.platform.screens.Open("BuildTemplate1");
  state.TotalSeconds = 0;
  state.TotalAtLoad = 0;
  context_.screen.Hide();
  state.ScreenActivated = 0;
  state.running = false;
  state.run_over = true;
  OrEndProgram(WriteCleanExitRecord(files));
  context_.platform.screens.Unload(context_.screen);
}

void PickListEngine::HoldForLive() {
  PickListForm1& screen = context_.screen;
  PickListState& state = context_.state;
  screen.Run.ShowLiveNow();
  state.AudioPaused = 1;
  state.live_now = true;
  state.ItemStartTimer = context_.platform.clock.Steady();
  screen.CurrLabel[0].SetCaption(" LIVE !");
  screen.CurrLabel[1].SetCaption(" ");
  screen.CurrLabel[2].SetCaption(" ");
  if (state.CurrentEvent > 1) ShowLast();
}

void PickListEngine::ShowLabels() {
  PickListForm1& screen = context_.screen;
  const PickListState& state = context_.state;
  const PickListEvent& event = context_.events.event(state.CurrentEvent);
  screen.EventLbl.SetCaption("Event #: " + std::to_string(state.CurrentEvent) + " out of " +
                             std::to_string(context_.events.EventCount()));
  screen.Text1.SetText(PickListPlaybackText());
  ShowNextUp();
  screen.CurrLabel[0].SetCaption(' ' + event.EventId + "  " + event.EventField4);
  screen.CurrLabel[1].SetCaption(' ' + event.EventField5);
  screen.CurrLabel[2].SetCaption(" Length:   " + event.EventLength);
  screen.CurrLabel[3].SetCaption(" Elapsed: ");
  if (state.CurrentEvent > 1) ShowLast();
  screen.List3.Select(state.CurrentEvent - 1);
}

void PickListEngine::ShowNextUp() {
  PickListForm1& screen = context_.screen;
  const EventTable& events = context_.events;
  const int next = context_.state.CurrentEvent + 1;
  const bool has_next = next <= events.EventCount();
  const bool has_second = next + 1 <= events.EventCount();
  Show(screen.NextLabel2, has_second ? NextUpRows(events.event(next + 1), true) : Rows());
  // The nearer one never reads "N/A".
  Show(screen.NextLabel1, has_next ? NextUpRows(events.event(next), false) : Rows());
}

void PickListEngine::ShowLast() {
  const PickListEvent& last = context_.events.event(context_.state.CurrentEvent - 1);
  context_.screen.LastLabel[0].SetCaption(' ' + last.EventId + "  " + last.EventField4);
  context_.screen.LastLabel[1].SetCaption(' ' + last.EventField5 + "   Len: " + last.EventLength);
}

void PickListEngine::WriteRecord() {
  const PickListState& state = context_.state;
  OrEndProgram(WritePickListRecord(context_.platform.files, state.TemplateName, state.CurrentEvent));
}

void PickListEngine::CheckSpot() {
  const std::string id = context_.current_id();
  if (!IsSpotId(id)) return;
  Files& files = context_.platform.files;
  if (!files.Exists(station_paths::DataFile(id))) {
    PassOverSpot();
    return;
  }
  const SpotDateSwitch date_check = ReadSpotDateSwitch(files);
  if (date_check == SpotDateSwitch::kUnknown) {
    context_.screen.Switches.Check4.SetCaption(SpotDateCaption(date_check));
  }
  if (date_check != SpotDateSwitch::kOn) return;
  const auto refusal = RefusalByDates(id);
  if (!refusal) return;
  context_.faults.Add(id + *refusal, ' ' + id + *refusal);
  PassOverSpot();
}

/// Random playback lets a text that is no date pass; here it is a fault that nothing catches. The kill date of a
/// spot that has yet to start is not looked at.
std::optional<std::string> PickListEngine::RefusalByDates(const std::string& id) const {
  Recording spot(id);
  SkipAndGoOn(spot.Read(context_.platform.files));
  const std::string& start_date = spot.value(Field::kStartDate);
  const std::string& kill_date = spot.value(Field::kKillDate);
  const CivilTime today = context_.platform.clock.Now();
  const auto date_or_end = [&today](const std::string& date) {
    if (!date.empty() && !CalendarDay(date, today.year)) OrEndProgram(RunTimeError::kTypeMismatch);
  };
  date_or_end(start_date);
  if (auto too_early = SpotDateRefusal(start_date, "", today)) return too_early;
  date_or_end(kill_date);
  return SpotDateRefusal("", kill_date, today);
}

/// What was refused never sounds. A list of nothing but spots that are out of their dates must come to an end:
/// after too many in a row, or a whole round of a repeated list, the operator is told, and a later tick goes on.
void PickListEngine::PassOverSpot() {
  PickListState& state = context_.state;
  state.ElapsedSecs = NumericValue(context_.events.event(state.CurrentEvent).EventLength);
  ++state.CurrentEvent;
  const bool whole_round = ++state.ExpiredSkipCount >= context_.events.EventCount() && state.RepeatOn == 1;
  if (state.ExpiredSkipCount <= kMostExpiredSkips && !whole_round) {
    PlayNextEvent();
    return;
  }
  state.ExpiredSkipCount = 0;
  context_.screen.Text1.SetBackColor(kYellow);
  context_.screen.Text1.SetText("Endless Loop Aborted: This EXPIRED spot will not play. Press END RUN now!");
  LeaveStep(whole_round ? kSecondsBetweenRounds : kSecondsUntilGoingOn);
}

/// Nothing is closed: a channel that plays goes on to its end.
void PickListEngine::HoldAtPause() {
  PickListState& state = context_.state;
  context_.screen.Text1.SetText(std::string(22, ' ') + "Audio Paused... Press <Begin Next> to Resume.");
  state.AudioPaused = 1;
  state.PauseStartedAt = context_.platform.clock.Steady();
}

/// True when the announcement plays, which ends the step.
bool PickListEngine::AnnounceTime() {
  PickListForm1& screen = context_.screen;
  PickListState& state = context_.state;
  MediaControl& channel = screen.Channels.MMControl1;
  const int length = OpenFile(channel, TimeFileName(context_.platform.clock.Now()));
  state.ActiveChannel = 1;
  state.ItemStartTimer = context_.platform.clock.Steady();
  if (length != 0) {
    channel.Command(ChannelCommand::kPlay);
    screen.CurrLabel[2].SetCaption(" Length:   " + ShortestSeconds(length));
    screen.CurrLabel[3].SetCaption(" ");
    screen.CurrLabel[4].SetCaption('(' + channel.file_name() + ')');
    context_.faults.ItemSounds();
    return true;
  }
  const std::string row = channel.file_name() + " = Empty!!!";
  context_.faults.Add(row, ' ' + row);
  channel.Command(ChannelCommand::kClose);
  ++state.CurrentEvent;
  PlayNextEvent();
  return false;
}

/// On channel 1 when it does not play, else on channel 2 when the overlap wants a second item. False when the
/// step ends here.
bool PickListEngine::StartItem() {
  if (StartsNoChannel(context_.current_id())) return true;
  if (context_.screen.Channels.MMControl1.Mode() != ChannelMode::kPlaying) return StartOnFirst();
  return context_.state.OverlapActive != 1 || StartOnSecond();
}

bool PickListEngine::StartOnFirst() {
  PickListState& state = context_.state;
  MediaControl& channel = context_.screen.Channels.MMControl1;
  // Nothing plays and no tick moves on: so a local break waits for the operator, and so does an event whose
  // data file is gone.
  if (context_.events.event(state.CurrentEvent).EventDrive.empty()) return false;
  OpenCurrent(channel);
  if (channel.Length() == 0) {
    TellEmpty(channel);
    channel.Command(ChannelCommand::kClose);
    ++state.CurrentEvent;
    PlayNextEvent();
    if (state.run_over) return false;
  }
  Play(1);
  CorrectForOverlap();
  return true;
}

/// An empty file is not replaced here: the run then waits for the operator or for the end of channel 1.
bool PickListEngine::StartOnSecond() {
  PickListState& state = context_.state;
  MediaControl& channel = context_.screen.Channels.MMControl2;
  if (context_.events.event(state.CurrentEvent).EventDrive.empty()) return false;
  if (channel.Mode() != ChannelMode::kPlaying) {
    OpenCurrent(channel);
    if (channel.Length() == 0) {
      TellEmpty(channel);
      channel.Command(ChannelCommand::kClose);
    }
  }
  Play(2);
  state.OverlapActive = 0;
  CorrectForOverlap();
  return true;
}

void PickListEngine::OpenCurrent(MediaControl& channel) {
  const PickListEvent& event = context_.events.event(context_.state.CurrentEvent);
  const auto extension = FindAudioFile(context_.platform.files, event.EventDrive, event.EventId);
  OpenFile(channel,
           station_paths::AudioFile(event.EventDrive, event.EventId, extension.value_or(std::string())));
}

void PickListEngine::TellEmpty(const MediaControl& channel) {
  PickListState& state = context_.state;
  const std::string row = channel.file_name() + " = Empty!!!";
  context_.faults.Add(row, ' ' + row);
  const double length = NumericValue(context_.events.event(state.CurrentEvent).EventLength);
  state.ProgramTimeNow = length + state.ProgramTimeSum;
  state.SecondsRemaining = state.TotalSeconds - state.ProgramTimeNow;
  ShowRemaining();
  state.TotalSeconds = RoundedSeconds(std::to_string(state.TotalSeconds - length));
}

void PickListEngine::Play(int number) {
  PickListForm1& screen = context_.screen;
  MediaControl& channel = screen.Channels.channel(number);
  channel.Command(ChannelCommand::kPlay);
  start_time_ = HourMinuteSecondAmPm(context_.platform.clock.Now());
  context_.state.ActiveChannel = number;
  screen.CurrLabel[2].SetCaption(" Length:   " + ShortestSeconds(channel.Length()));
  screen.CurrLabel[4].SetCaption('(' + channel.file_name() + ')');
}

/// Two items that overlap last so much less together.
void PickListEngine::CorrectForOverlap() {
  PickListState& state = context_.state;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap != 0 && state.SkipSumming != 1 && state.CurrentEvent > 1 &&
      !context_.current_id().starts_with('S') &&
      !context_.events.event(state.CurrentEvent - 1).EventId.starts_with('S')) {
    state.TotalSeconds -= overlap;
  }
  state.SkipSumming = 0;
}

void PickListEngine::Verify() {
  PickListForm1& screen = context_.screen;
  if (!screen.Channels.AnythingSounds()) return;  // nothing could be started: no proof of airing
  context_.faults.ItemSounds();
  const PickListEvent& event = context_.events.event(context_.state.CurrentEvent);
  if (!screen.Switches.verification_on() || !IsVerified(event.EventId)) return;
  OrEndProgram(LogVerification(context_.platform.files, context_.platform.clock.Now(), event.EventId,
                               LogDescription(event.EventId, event.EventField4), start_time_,
                               ModeLetter::kPickList));
}

void PickListEngine::FinishStep() {
  PickListForm1& screen = context_.screen;
  const CivilTime now = context_.platform.clock.Now();
  screen.Text2.SetText("Today is: " + DayName(now) + ". " + MonthDayYear(now));
  context_.state.ItemStartTimer = context_.platform.clock.Steady();
  ArmTimers();
}

void PickListEngine::ArmTimers() {
  context_.screen.Timer2.SetInterval(kChannelPollTick);
  const bool overlap = context_.screen.Overlap.Settled() != 0;
  context_.screen.Timer3.SetInterval(overlap ? kOverlapTick : std::chrono::milliseconds(0));
}

void PickListEngine::ShowRemaining(bool wide) {
  Show(context_.screen.TotalRemain, RemainingTexts(context_.state.SecondsRemaining, wide));
}

std::string PickListPlaybackText() {
  return std::string(50, ' ') + "Digital Audio Playback in Progress";
}

}  // namespace quixair
