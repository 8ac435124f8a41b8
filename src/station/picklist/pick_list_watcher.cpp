#include "station/picklist/pick_list_watcher.h"

#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_playback.h"
#include "station/platform/text.h"

namespace quixair {

MediaControl& PickListWatcher::channel(int number) {
  return context_.screen.Channels.channel(number);
}

void PickListWatcher::Tick() {
  PickListForm1& screen = context_.screen;
  PickListState& state = context_.state;
  if (state.run_over) return;
  screen.Text5.SetText(std::to_string(state.ActiveChannel) + (channel(1).notify() ? " True" : " False"));
  channel(1).SetNotify(true);
  screen.Channels.UpdateLabels();
  if (state.PauseNextPending == 1) {
    state.PauseNextPending = 0;
    state.AudioPaused = 0;
    controls_.Pause();
  }
  state.TickTimer = context_.platform.clock.Steady();
  ShowElapsed();
  if (state.AudioPaused == 1) return;
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
    if (context_.state.run_over) return;
    (this->*rule)();
  }
}

void PickListWatcher::ShowElapsed() {
  PickListState& state = context_.state;
  state.ElapsedSecs = SecondsBetween(state.ItemStartTimer, state.TickTimer);
  context_.screen.CurrLabel[3].SetCaption(" Elapsed: " + FixedDecimals(state.ElapsedSecs, 1));
}

void PickListWatcher::ShowTotals() {
  PickListState& state = context_.state;
  if (IsTimeEvent(context_.current_id())) return;
  state.ProgramTimeNow = state.ProgramTimeSum + state.ElapsedSecs;
  state.SecondsRemaining = state.TotalSeconds - state.ProgramTimeNow;
  engine_.ShowRemaining();
}

void PickListWatcher::GoOn() {
  ++context_.state.CurrentEvent;
  engine_.PlayNextEvent();
}

void PickListWatcher::RetireFirstAfterOverlap() {
  PickListState& state = context_.state;
  if (channel(1).Mode() != ChannelMode::kStopped || state.ActiveChannel != 2 || state.OverlapActive != 1) {
    return;
  }
  channel(1).Command(ChannelCommand::kClose);
  state.ActiveChannel = 99;
}

/// Counted by the clock from the item's start, and one second earlier than the way to channel 2. Behind the last
/// event of a list there is nothing to hand back to: it plays to its end.
void PickListWatcher::HandBack() {
  PickListState& state = context_.state;
  if (state.CurrentEvent >= context_.events.EventCount() && state.RepeatOn != 1) return;
  const std::string& next = context_.events.next_id(state.CurrentEvent);
  // A lower-case "s" does not hold it off here, unlike on the way to channel 2: known, and kept.
  if (state.LiveRequested == 1 || IsTimeEvent(next) || next.starts_with('S')) return;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap == 0 || channel(2).Mode() != ChannelMode::kPlaying ||
      channel(1).Mode() != ChannelMode::kNotOpen) {
    return;
  }
  if (channel(2).Length() / 1000.0 - state.ElapsedSecs > overlap + 1) return;
  state.OverlapHandBack = 1;
  state.ActiveChannel = 1;
  state.OverlapActive = 0;
  ++state.CurrentEvent;
  channel(1).Command(ChannelCommand::kClose);
  engine_.PlayNextEvent();
}

void PickListWatcher::EndSecondWhileFirstIsClosed() {
  PickListState& state = context_.state;
  if (channel(2).Mode() == ChannelMode::kPlaying || state.ActiveChannel != 99 || state.OverlapActive != 1)
    return;
  if (channel(2).Mode() == ChannelMode::kStopped && state.OverlapHandBack == 1) {
    channel(2).Command(ChannelCommand::kClose);
    state.OverlapActive = 0;
    state.OverlapHandBack = 0;
  }
  GoOn();
}

void PickListWatcher::EndSecondAfterHandBack() {
  PickListState& state = context_.state;
  if (channel(2).Mode() != ChannelMode::kStopped || state.ActiveChannel != 1 || state.OverlapActive != 1)
    return;
  channel(2).Command(ChannelCommand::kClose);
  state.OverlapActive = 0;
  GoOn();
}

/// Closes channel 1 for the next item; channel 2 is closed by the sweep.
void PickListWatcher::EndSecond() {
  PickListState& state = context_.state;
  if (channel(2).Mode() != ChannelMode::kStopped || state.ActiveChannel != 2) return;
  channel(1).Command(ChannelCommand::kClose);
  state.OverlapActive = 0;
  GoOn();
}

/// The ordinary end of an item.
void PickListWatcher::EndFirst() {
  PickListState& state = context_.state;
  if (channel(1).Mode() != ChannelMode::kStopped || state.ActiveChannel != 1) return;
  channel(1).Command(ChannelCommand::kClose);
  state.OverlapActive = 0;
  GoOn();
}

void PickListWatcher::EndSpotOnFirst() {
  if (channel(1).Mode() == ChannelMode::kStopped && StartsWithIgnoringCase(context_.current_id(), "S"))
    GoOn();
}

void PickListWatcher::Sweep() {
  context_.screen.Channels.SweepEnded();
}

/// Behind the operator's Continue at a pause event.
void PickListWatcher::GoOnAfterPause() {
  if (context_.state.AudioPaused == 1) return;
  const bool both_closed =
      channel(1).Mode() == ChannelMode::kNotOpen && channel(2).Mode() == ChannelMode::kNotOpen;
  if (both_closed && context_.current_id().starts_with(">P")) GoOn();
}

}  // namespace quixair
