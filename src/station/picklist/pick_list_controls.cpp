#include "station/picklist/pick_list_controls.h"

#include <array>
#include <chrono>
#include <string>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/lineup_totals.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_playback.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {

void PickListControls::Start() {
  PickListState& state = context_.state;
  if (state.BeganNext == 1) engine_.PlayNextEvent();
  context_.screen.Channels.Arm();
  ShowRunControls();
  ShowLineup();
  state.running = true;
  state.ProgramTimeNow = 0;
  state.ProgramTimeSum = 0;
  ListBox& list = context_.screen.List3;
  context_.screen.Text2.Show();
  list.Show();
  list.Clear();
  for (int number = 1; number <= context_.events.EventCount(); ++number) {
    list.AddRow(EventRow(number, context_.events.event(number)));
  }
  if (state.FirstEvent == 0) state.FirstEvent = 1;
  state.CurrentEvent = state.FirstEvent;
  engine_.PlayNextEvent();
  if (!state.run_over) engine_.ArmTimers();
}

void PickListControls::ShowRunControls() {
  PickListForm1& screen = context_.screen;
  const std::array<Control*, 7> hidden = {&screen.Start,        &screen.Command2, &screen.List1,
                                          &screen.Overlap.save, &screen.Label1,   &screen.Label2,
                                          &screen.Command4};
  for (Control* control : hidden) control->Hide();
  screen.Overlap.List2.Disable();
  screen.Run.ShowForRun();
  for (Control* control : std::array<Control*, 3>{&screen.EventLbl, &screen.Remaining, &screen.Lineup}) {
    control->Show();
  }
  for (std::size_t row = 0; row < 2; ++row) {
    screen.TotalRemain[row].Show();
    screen.TotalLineup[row].Show();
  }
}

void PickListControls::ShowLineup() {
  const auto texts = LineupTexts(context_.state.TotalSeconds);
  context_.screen.TotalLineup[0].SetCaption(texts[0]);
  context_.screen.TotalLineup[1].SetCaption(texts[1]);
  context_.screen.TotalLineup[2].SetCaption("");
}

void PickListControls::StartWhenDue() {
  PickListForm1& screen = context_.screen;
  if (!screen.StartTime.IsDue(HourMinuteAmPm(context_.platform.clock.Now()))) return;
  screen.Timer1.SetInterval(std::chrono::milliseconds(0));
  screen.Timer1.SetEnabled(false);
  if (!context_.state.running) Start();
}

void PickListControls::Pause() {
  PickListState& state = context_.state;
  if (state.AudioPaused != 0) return;
  state.PauseStartedAt = state.TickTimer;
  context_.screen.Text1.SetText(context_.current_id() +
                                "  AUDIO PAUSED...  Click Continue or ALT+C to Resume ");
  state.AudioPaused = 1;
  context_.screen.Channels.PauseAll();
  context_.screen.Run.ShowPaused();
}

void PickListControls::ResumeClock() {
  PickListState& state = context_.state;
  if (state.RequeuePending == 1) {
    state.ItemStartTimer = context_.platform.clock.Steady();
    state.RequeuePending = 0;
    return;
  }
  state.ItemStartTimer += state.TickTimer - state.PauseStartedAt;
}

void PickListControls::Continue() {
  PickListState& state = context_.state;
  PickListForm1& screen = context_.screen;
  if (context_.current_id().starts_with(">P")) state.OverlapActive = 0;
  if (state.AudioPaused == 1) {
    if (!state.live_now) ResumeClock();
    screen.Channels.ResumeAll();
    screen.Text1.SetText(PickListPlaybackText());
    state.AudioPaused = 0;
    screen.Run.ShowResumed();
  }
  if (state.live_now) EndLiveBreak();
}

/// A request that has not taken effect yet outlives a pause.
void PickListControls::EndLiveBreak() {
  PickListState& state = context_.state;
  state.LiveRequested = 0;
  state.live_now = false;
  state.AudioPaused = 0;
  context_.screen.Run.ShowLiveOver();
  engine_.PlayNextEvent();
}

/// A skipped item counts with its whole length, as if it had played.
void PickListControls::SkipChannel(int number) {
  PickListState& state = context_.state;
  MediaControl& channel = context_.screen.Channels.channel(number);
  if (channel.Mode() == ChannelMode::kNotOpen) return;
  state.ElapsedSecs = channel.Length() / 1000.0;
  if (number < 3) {
    state.ProgramTimeNow = state.ProgramTimeSum + state.ElapsedSecs;
    state.ProgramTimeSum = state.ProgramTimeNow;
  }
  channel.Command(ChannelCommand::kClose);
}

void PickListControls::BeginNext() {
  PickListState& state = context_.state;
  PickListForm1& screen = context_.screen;
  const bool live_over = state.live_now;
  if (state.AudioPaused == 1 && state.LiveRequested != 1) Continue();
  state.SkipSumming = 1;
  for (int number = 1; number <= 3; ++number) SkipChannel(number);
  state.OverlapActive = 0;
  if (state.LiveRequested != 1) ++state.CurrentEvent;
  state.BeganNext = 1;
  screen.Run.RequeueCommand.Enable();
  screen.Run.BeginNextCommand.Enable();
  if (screen.Switches.pause_after_next()) state.PauseNextPending = 1;
  // A break that is asked for comes at once, before the event in turn; one that is on is over.
  if (live_over) {
    Continue();
  } else {
    engine_.PlayNextEvent();
  }
}

void PickListControls::Requeue() {
  context_.screen.Channels.RewindAll();
  context_.state.RequeuePending = 1;
  Pause();
}

void PickListControls::GoLive() {
  PickListState& state = context_.state;
  state.LiveRequested = state.LiveRequested == 0 ? 1 : 0;
  if (state.LiveRequested == 1) {
    context_.screen.Run.ShowLiveAsked();
  } else {
    context_.screen.Run.ShowLiveTakenBack();
  }
}

void PickListControls::EndRun() {
  if (context_.state.run_over) return;
  SkipAndGoOn(WriteTextSetting(context_.platform.files, station_paths::kStartTime, ""));
  context_.screen.Text1.SetText("Quitting on Event #: " + std::to_string(context_.state.CurrentEvent));
  context_.screen.Channels.CloseAll();
  engine_.EndOfRun();
}

void PickListControls::Quit() {
  context_.state.PikModeValue.clear();
  engine_.EndOfRun();
}

void PickListControls::ChooseFirstEvent() {
  const std::string row = context_.screen.List1.selected_text();
  context_.state.FirstEvent = WholeValue(std::string_view(row).substr(0, 4));
  context_.screen.Label1.SetCaption("Set First Event: (" + row + ')');
}

void PickListControls::TellAboutRemaining() {
  context_.platform.dialogs.MessageBox(
      "The time remaining feature will not be\nexact when overlap is turned on, due to\n"
      "variances in the overlap timing.",
      box_style::kInformation, "Time Remaining");
}

bool PickListControls::BarMayContinue(bool looks_at_pause) const {
  const PickListState& state = context_.state;
  return state.LiveRequested != 1 && state.RequeuePending != 1 && (!looks_at_pause || state.AudioPaused != 1);
}

}  // namespace quixair
