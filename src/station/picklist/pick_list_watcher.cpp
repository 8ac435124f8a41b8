#include "station/picklist/pick_list_watcher.h"

#include "station/picklist/pick_list_controls.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_run.h"
#include "station/platform/text.h"

namespace quixair {

PickListWatcher::PickListWatcher(PickListContext& context, PickListEngine& engine, PickListControls& controls)
    : context_(context), deck_(context.air.deck), engine_(engine), controls_(controls) {}

void PickListWatcher::Tick() {
  PickListForm1& screen = context_.screen;
  PickListRun& run = context_.run;
  if (run.run_over) return;
  MediaControl& first = screen.Channels.MMControl1;
  screen.Text5.SetText(std::to_string(static_cast<int>(deck_.active)) +
                       (first.notify() ? " True" : " False"));
  first.SetNotify(true);
  screen.Channels.UpdateLabels();
  if (context_.air.PauseNextPending) {
    context_.air.PauseNextPending = false;
    controls_.Pause();
  }
  run.ElapsedSecs = deck_.elapsed();
  context_.air.ShowElapsed();
  if (deck_.AudioPaused()) {
    context_.air.Guard(true, {});  // a silence goes on from here
    return;
  }
  engine_.GoOnWhereLeft();
  ShowTotals();
  WatchChannels();
}

void PickListWatcher::WatchChannels() {
  using Rule = void (PickListWatcher::*)();
  constexpr Rule kRules[] = {&PickListWatcher::RetireFirstAfterOverlap,
                             &PickListWatcher::HandBack,
                             &PickListWatcher::EndSecondWhileFirstIsClosed,
                             &PickListWatcher::EndSecondAfterHandBack,
                             &PickListWatcher::EndSecond,
                             &PickListWatcher::EndFirst,
                             &PickListWatcher::EndSpotOnFirst,
                             &PickListWatcher::Sweep,
                             &PickListWatcher::GoOnAfterPause};
  for (const Rule rule : kRules) {
    if (context_.run.run_over) return;
    (this->*rule)();
  }
  if (!context_.run.run_over)
    context_.air.Guard(engine_.WaitsForOperator(), [this] { controls_.BeginNext(); });
}

void PickListWatcher::ShowTotals() {
  PickListRun& run = context_.run;
  if (IsTimeEvent(context_.current_id())) return;
  run.ProgramTimeNow = run.ProgramTimeSum + run.ElapsedSecs;
  run.SecondsRemaining = run.TotalSeconds - run.ProgramTimeNow;
  engine_.ShowRemaining();
}

void PickListWatcher::GoOn() {
  ++context_.run.CurrentEvent;
  engine_.PlayNextEvent();
}

void PickListWatcher::RetireFirstAfterOverlap() {
  if (!deck_.ended(1) || deck_.active != ActiveChannel::kSecond || !deck_.OverlapActive) return;
  deck_.End(1, EndCause::kEndOfFile);
  deck_.active = ActiveChannel::kFirstRetiring;
}

/// Counted by the clock from the item's start, and one second earlier than the way to channel 2. Behind the last
/// event of a list there is nothing to hand back to: it plays to its end.
void PickListWatcher::HandBack() {
  PickListRun& run = context_.run;
  if (run.CurrentEvent >= context_.events.EventCount() && !run.RepeatOn) return;
  const std::string& next = context_.events.next_id(run.CurrentEvent);
  // A lower-case "s" does not hold it off here, unlike on the way to channel 2: known, and kept.
  if (deck_.live.LiveRequested() || IsTimeEvent(next) || next.starts_with('S')) return;
  if (context_.events.StandsAt(run.CurrentEvent + 1)) return;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap == 0 || !deck_.plays(2) || !deck_.closed(1)) return;
  if (deck_.length(2) - run.ElapsedSecs > overlap + 1) return;
  deck_.OverlapHandBack = true;
  deck_.active = ActiveChannel::kFirst;
  deck_.OverlapActive = false;
  GoOn();
}

void PickListWatcher::EndSecondWhileFirstIsClosed() {
  if (deck_.plays(2) || deck_.active != ActiveChannel::kFirstRetiring || !deck_.OverlapActive) return;
  if (deck_.ended(2) && deck_.OverlapHandBack) {
    deck_.End(2, EndCause::kEndOfFile);
    deck_.OverlapActive = false;
    deck_.OverlapHandBack = false;
  }
  GoOn();
}

void PickListWatcher::EndSecondAfterHandBack() {
  if (!deck_.ended(2) || deck_.active != ActiveChannel::kFirst || !deck_.OverlapActive) return;
  deck_.End(2, EndCause::kEndOfFile);
  deck_.OverlapActive = false;
  GoOn();
}

/// Closes channel 1 for the next item; channel 2 is closed by the sweep.
void PickListWatcher::EndSecond() {
  if (!deck_.ended(2) || deck_.active != ActiveChannel::kSecond) return;
  deck_.End(1, EndCause::kHandOver);
  deck_.OverlapActive = false;
  GoOn();
}

/// The ordinary end of an item.
void PickListWatcher::EndFirst() {
  if (!deck_.ended(1) || deck_.active != ActiveChannel::kFirst) return;
  deck_.End(1, EndCause::kEndOfFile);
  deck_.OverlapActive = false;
  GoOn();
}

void PickListWatcher::EndSpotOnFirst() {
  if (deck_.ended(1) && StartsWithIgnoringCase(context_.current_id(), "S")) GoOn();
}

void PickListWatcher::Sweep() {
  deck_.SweepEnded();
}

/// Behind the operator's Continue at a pause event.
void PickListWatcher::GoOnAfterPause() {
  if (deck_.AudioPaused()) return;
  if (deck_.closed(1) && deck_.closed(2) && context_.current_id().starts_with(">P")) GoOn();
}

}  // namespace quixair
