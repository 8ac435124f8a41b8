#include "station/picklist/pick_list_controls.h"

#include <array>
#include <string>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/lineup_totals.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_run.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {

void PickListControls::Start() {
  if (!context_.air.MayBegin()) return;
  PickListRun& run = context_.run;
  context_.air.BeginRun();
  ShowTotals();
  ShowLineup();
  run.ProgramTimeNow = 0;
  run.ProgramTimeSum = 0;
  ListBox& list = context_.screen.List3;
  context_.screen.Text2.Show();
  list.Show();
  list.Clear();
  for (int number = 1; number <= context_.events.EventCount(); ++number) {
    list.AddRow(EventRow(number, context_.events.event(number)));
  }
  if (run.FirstEvent == 0) run.FirstEvent = 1;
  run.CurrentEvent = run.FirstEvent;
  engine_.PlayNextEvent();
  if (!run.run_over)
    context_.air.ArmTimers();  // a list may begin with an announcement, whose step ends early
}

void PickListControls::ShowTotals() {
  PickListForm1& screen = context_.screen;
  for (Control* control : std::array<Control*, 3>{&screen.EventLbl, &screen.Remaining, &screen.Lineup}) {
    control->Show();
  }
  for (std::size_t row = 0; row < 2; ++row) {
    screen.TotalRemain[row].Show();
    screen.TotalLineup[row].Show();
  }
}

void PickListControls::ShowLineup() {
  const auto texts = LineupTexts(context_.run.TotalSeconds);
  context_.screen.TotalLineup[0].SetCaption(texts[0]);
  context_.screen.TotalLineup[1].SetCaption(texts[1]);
  context_.screen.TotalLineup[2].SetCaption("");
}

void PickListControls::Pause() {
  context_.air.Pause(context_.current_id() + status_text::kPaused);
}

void PickListControls::Continue() {
  Deck& deck = context_.air.deck;
  if (context_.current_id().starts_with(">P")) deck.OverlapActive = false;
  if (deck.AudioPaused()) {
    deck.GoOn();
    context_.air.status.Tell(PickListPlaybackText());
    context_.screen.Run.ShowResumed();
  }
  if (context_.air.EndLiveBreak()) engine_.PlayNextEvent();
}

/// A skipped item counts with its whole length, as if it had played.
void PickListControls::SkipChannel(int number) {
  PickListRun& run = context_.run;
  Deck& deck = context_.air.deck;
  if (deck.closed(number)) return;
  run.ElapsedSecs = deck.length(number);
  run.ProgramTimeNow = run.ProgramTimeSum + run.ElapsedSecs;
  run.ProgramTimeSum = run.ProgramTimeNow;
  deck.End(number, EndCause::kSkipped);
}

void PickListControls::BeginNext() {
  PickListRun& run = context_.run;
  PickListForm1& screen = context_.screen;
  Deck& deck = context_.air.deck;
  const bool live_over = deck.live.on();
  if (deck.AudioPaused() && !deck.live.LiveRequested()) Continue();
  run.SkipSumming = true;
  for (const int number : {1, 2}) SkipChannel(number);
  deck.OverlapActive = false;
  if (!deck.live.LiveRequested()) ++run.CurrentEvent;
  screen.Run.RequeueCommand.Enable();
  screen.Run.BeginNextCommand.Enable();
  if (screen.Switches.pause_after_next()) context_.air.PauseNextPending = true;
  // A break that is asked for comes at once, before the event in turn; one that is on is over.
  if (live_over) {
    Continue();
  } else {
    engine_.PlayNextEvent();
  }
}

void PickListControls::Requeue() {
  context_.air.deck.Rewind();
  Pause();
}

void PickListControls::EndRun() {
  if (context_.run.run_over) return;
  SkipAndGoOn(WriteTextSetting(context_.platform.files, station_paths::kStartTime, ""));
  context_.air.status.Tell("Quitting on Event #: " + std::to_string(context_.run.CurrentEvent));
  context_.air.deck.EndRun(EndCause::kOperator);
  engine_.EndOfRun();
}

void PickListControls::Quit() {
  context_.run.PikModeValue.clear();
  engine_.EndOfRun();
}

void PickListControls::ChooseFirstEvent() {
  const std::string row = context_.screen.List1.selected_text();
  context_.run.FirstEvent = WholeValue(std::string_view(row).substr(0, 4));
  context_.screen.Label1.SetCaption("Set First Event: (" + row + ')');
}

void PickListControls::TellAboutRemaining() {
  context_.platform.dialogs.MessageBox(
      "The time remaining feature will not be\nexact when overlap is turned on, due to\n"
      "variances in the overlap timing.",
      box_style::kInformation, "Time Remaining");
}

}  // namespace quixair
