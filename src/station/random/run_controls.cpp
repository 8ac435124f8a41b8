#include "station/random/run_controls.h"

#include <array>
#include <string>

#include "station/console/settings_files.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/item_step.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

void RunControls::Start() {
  if (!context_.air.MayBegin()) return;
  RandomRun& run = context_.run;
  RandomForm1& screen = context_.screen;
  SkipAndGoOn(WriteRunningRecord(context_.platform.files, kRandomMode, run.TemplateName));
  context_.air.BeginRun();
  const std::array<Control*, 6> shown = {&screen.Text2,  &screen.List3,  &screen.List5,
                                         &screen.Label7, &screen.Label8, &screen.List7};
  for (Control* control : shown) control->Show();
  if (run.first_event == 0) run.first_event = 1;
  run.event_counter = run.first_event;
  const CivilTime now = context_.platform.clock.Now();
  context_.platform.random.Randomize(static_cast<std::uint64_t>(MillisecondsFromCivil(now)));
  context_.rotation = RotationState();
  engine_.PlayNextItem();
}

void RunControls::Pause() {
  context_.air.Pause(status_text::kPaused);
}

void RunControls::Continue() {
  if (!context_.air.deck.running()) return;  // a transport bar before the run
  context_.air.deck.GoOn();
  context_.air.status.Tell(PlaybackText(context_.run.StopSetActive));
  context_.screen.Run.ShowResumed();
  if (context_.air.EndLiveBreak()) engine_.PlayNextItem();
}

void RunControls::BeginNext() {
  RandomForm1& screen = context_.screen;
  Deck& deck = context_.air.deck;
  if (screen.Switches.pause_after_next()) context_.air.PauseNextPending = true;
  ++context_.run.event_counter;
  const bool live_over = deck.live.on();
  if (deck.AudioPaused()) Continue();
  if (live_over) return;  // its end has started the next item
  deck.EndAll(EndCause::kSkipped);
  deck.OverlapActive = false;
  engine_.PlayNextItem();
  if (deck.AnythingSounds() || deck.AudioPaused()) return;
  screen.Run.RequeueCommand.Disable();  // until an item is heard
  screen.Run.BeginNextCommand.Disable();
}

void RunControls::Requeue() {
  context_.air.deck.Rewind();
  Pause();
}

void RunControls::EndRun() {
  context_.air.status.Tell("Quitting on Event #: " + std::to_string(context_.run.event_counter));
  context_.air.deck.EndRun(EndCause::kOperator);
  SkipAndGoOn(WriteCleanExitRecord(context_.platform.files));
}

void RunControls::Quit() {
  SkipAndGoOn(WriteCleanExitRecord(context_.platform.files));
}

void RunControls::ChooseFirstEvent() {
  const std::string row = context_.screen.List1.selected_text();
  context_.run.first_event = WholeValue(std::string_view(row).substr(0, 4));
  context_.screen.Label1.SetCaption("Set First Event: (" + std::to_string(context_.run.first_event) + ')');
}

}  // namespace quixair
