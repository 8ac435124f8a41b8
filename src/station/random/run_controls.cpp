#include "station/random/run_controls.h"

#include <array>
#include <string>

#include "station/console/settings_files.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/random_form1.h"
#include "station/random/random_playback.h"

namespace quixair {

void RunControls::Start() {
  RunState& run = context_.run;
  if (run.begin_next == 1) engine_.PlayNextItem();
  SkipAndGoOn(WriteRunningRecord(context_.platform.files, kRandomMode, run.TemplateName));
  context_.screen.Channels.Arm();
  ShowRunControls();
  if (run.first_event == 0) run.first_event = 1;
  run.event_counter = run.first_event;
  const CivilTime now = context_.platform.clock.Now();
  context_.platform.random.Randomize(static_cast<std::uint64_t>(MillisecondsFromCivil(now)));
  context_.rotation = RotationState();
  run.running = true;
  engine_.PlayNextItem();
}

void RunControls::ShowRunControls() {
  RandomForm1& screen = context_.screen;
  const std::array<Control*, 7> hidden = {&screen.Start,        &screen.Command2, &screen.List1,
                                          &screen.Overlap.save, &screen.Label1,   &screen.Label2,
                                          &screen.Command4};
  for (Control* control : hidden) control->Hide();
  screen.Overlap.List2.Disable();
  screen.Overlap.save.Disable();
  screen.Run.ShowForRun();
  const std::array<Control*, 6> shown = {&screen.Text2,  &screen.List3,  &screen.List5,
                                         &screen.Label7, &screen.Label8, &screen.List7};
  for (Control* control : shown) control->Show();
}

void RunControls::StartWhenDue() {
  if (!context_.screen.StartTime.IsDue(HourMinuteAmPm(context_.platform.clock.Now()))) return;
  context_.screen.Timer1.SetInterval(std::chrono::milliseconds(0));
  if (!context_.run.running) Start();
}

void RunControls::Pause() {
  RunState& run = context_.run;
  RandomForm1& screen = context_.screen;
  if (run.AudioPaused != 0) return;
  run.pause_started = context_.platform.clock.Steady();
  screen.Text1.SetText("  AUDIO PAUSED...  Click Continue or ALT+C to Resume ");
  run.AudioPaused = 1;
  screen.Channels.PauseAll();
  screen.Run.ShowPaused();
}

void RunControls::ResumeClock() {
  RunState& run = context_.run;
  const SteadyTime now = context_.platform.clock.Steady();
  if (run.requeue == 1) {
    run.ItemStartTimer = now;
    run.requeue = 0;
    return;
  }
  run.ItemStartTimer += now - run.pause_started;
}

void RunControls::Continue() {
  RunState& run = context_.run;
  RandomForm1& screen = context_.screen;
  if (run.AudioPaused == 1 && !run.live_now) ResumeClock();
  screen.Channels.ResumeAll();
  screen.Text1.SetText(PlaybackText(run.StopSetActive == 1));
  run.AudioPaused = 0;
  run.override_outlives_set = false;
  screen.Run.ShowResumed();
  if (run.live_now) EndLiveBreak();
}

/// A request that has not taken effect yet outlives a pause.
void RunControls::EndLiveBreak() {
  RunState& run = context_.run;
  run.LiveRequested = 0;
  run.live_now = false;
  context_.screen.Run.ShowLiveOver();
  engine_.PlayNextItem();
}

void RunControls::BeginNext() {
  RunState& run = context_.run;
  RandomForm1& screen = context_.screen;
  if (run.AudioPaused == 1) Continue();
  for (int number = 1; number <= 3; ++number) {
    MediaControl& channel = screen.Channels.channel(number);
    if (channel.Mode() != ChannelMode::kNotOpen) {
      channel.Command(ChannelCommand::kClose);
    }
    if (number == 2) run.OverlapActive = 0;
  }
  ++run.event_counter;
  run.begin_next = 1;
  screen.Run.RequeueCommand.Disable();
  screen.Run.BeginNextCommand.Disable();
  if (screen.Switches.pause_after_next()) run.PauseNextPending = 1;
  engine_.PlayNextItem();
}

void RunControls::Requeue() {
  context_.screen.Channels.RewindAll();
  context_.run.requeue = 1;
  Pause();
}

void RunControls::GoLive() {
  RunState& run = context_.run;
  run.LiveRequested = run.LiveRequested == 0 ? 1 : 0;
  if (run.LiveRequested == 1) {
    context_.screen.Run.ShowLiveAsked();
  } else {
    context_.screen.Run.ShowLiveTakenBack();
  }
}

void RunControls::EndRun() {
  context_.screen.Text1.SetText("Quitting on Event #: " + std::to_string(context_.run.event_counter));
  context_.screen.Channels.CloseAll();
  SkipAndGoOn(WriteCleanExitRecord(context_.platform.files));
  context_.run = RunState();
  context_.rotation = RotationState();
}

void RunControls::Quit() {
  SkipAndGoOn(WriteCleanExitRecord(context_.platform.files));
  context_.run.TemplateName.clear();
}

void RunControls::ChooseFirstEvent() {
  const std::string row = context_.screen.List1.selected_text();
  context_.run.first_event = WholeValue(std::string_view(row).substr(0, 4));
  context_.screen.Label1.SetCaption("Set First Event: (" + std::to_string(context_.run.first_event) + ')');
}

bool RunControls::BarMayContinue(bool looks_at_pause) const {
  const RunState& run = context_.run;
  return run.LiveRequested != 1 && run.requeue != 1 && (!looks_at_pause || run.AudioPaused != 1);
}

}  // namespace quixair
