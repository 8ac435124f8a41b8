#include "station/random/channel_watcher.h"

#include "station/platform/text.h"
#include "station/random/day_scheduler.h"
#include "station/random/random_form1.h"
#include "station/random/random_playback.h"

namespace quixair {

MediaControl& ChannelWatcher::channel(int number) {
  return context_.screen.Channels.channel(number);
}

void ChannelWatcher::Tick() {
  context_.screen.Channels.UpdateLabels();
  scheduler_.ChangeAtMidnight();
  if (context_.run.PauseNextPending == 1) {
    context_.run.PauseNextPending = 0;
    context_.run.AudioPaused = 0;
    controls_.Pause();
  }
  if (WaitWhilePaused()) return;
  ShowElapsed();
  RetireFirstAfterOverlap();
  HandBack();
  StartWhenBothClosed();
  EndSecondAfterHandBack();
  EndFirst();
  EndSecond();
  EndThird();
  DropEmptyChannels();
  context_.screen.Channels.SweepEnded();
  scheduler_.Scan();
}

void ChannelWatcher::ShowElapsed() {
  RunState& run = context_.run;
  run.ElapsedSecs = SecondsBetween(run.ItemStartTimer, context_.platform.clock.Steady());
  context_.screen.CurrLabel[3].SetCaption(" Elapsed: " + FixedDecimals(run.ElapsedSecs, 1));
}

bool ChannelWatcher::WaitWhilePaused() {
  RunState& run = context_.run;
  if (run.AudioPaused != 1) return false;
  ShowElapsed();
  const int override_seconds = context_.settings.PauseOverrideSecs;
  const bool in_set = run.StopSetActive == 1 || run.override_outlives_set;
  if (in_set && override_seconds != 0 && run.ElapsedSecs >= override_seconds) controls_.BeginNext();
  return true;
}

void ChannelWatcher::RetireFirstAfterOverlap() {
  RunState& run = context_.run;
  if (channel(1).Mode() != ChannelMode::kStopped || run.ActiveChannel != 2 || run.OverlapActive != 1) return;
  channel(1).Command(ChannelCommand::kClose);
  run.ActiveChannel = 99;
}

/// Counted by the clock from the item's start, not by the channel's position.
void ChannelWatcher::HandBack() {
  RunState& run = context_.run;
  const int overlap = context_.screen.Overlap.seconds();
  if (run.LiveRequested == 1 || overlap == 0) return;
  if (channel(2).Mode() != ChannelMode::kPlaying || channel(1).Mode() != ChannelMode::kNotOpen) return;
  if (channel(2).Length() / 1000.0 - run.ElapsedSecs > overlap + 1) return;
  run.OverlapHandBack = 1;
  run.ActiveChannel = 1;
  run.OverlapActive = 0;
  engine_.PlayNextItem();
}

/// Starts, or starts again, after anything that left the channels silent.
void ChannelWatcher::StartWhenBothClosed() {
  RunState& run = context_.run;
  if (channel(1).Mode() != ChannelMode::kNotOpen || channel(2).Mode() != ChannelMode::kNotOpen) return;
  run.OverlapActive = 0;
  run.ActiveChannel = 1;
  engine_.PlayNextItem();
}

void ChannelWatcher::EndSecondAfterHandBack() {
  RunState& run = context_.run;
  if (channel(2).Mode() != ChannelMode::kStopped || run.OverlapHandBack != 1) return;
  channel(2).Command(ChannelCommand::kClose);
  run.OverlapActive = 0;
  run.OverlapHandBack = 0;
}

/// The ordinary end of an item.
void ChannelWatcher::EndFirst() {
  if (channel(1).Mode() != ChannelMode::kStopped || context_.run.OverlapActive == 1) return;
  channel(1).Command(ChannelCommand::kClose);
  engine_.PlayNextItem();
}

void ChannelWatcher::EndSecond() {
  RunState& run = context_.run;
  if (channel(2).Mode() == ChannelMode::kStopped && run.ActiveChannel == 99 && run.OverlapActive == 1) {
    channel(2).Command(ChannelCommand::kClose);
  }
  if (channel(2).Mode() == ChannelMode::kStopped && run.ActiveChannel == 1 && run.OverlapActive == 1) {
    channel(2).Command(ChannelCommand::kClose);
    run.OverlapActive = 0;
  }
}

void ChannelWatcher::EndThird() {
  if (channel(3).Mode() != ChannelMode::kStopped) return;
  channel(3).Command(ChannelCommand::kClose);
  engine_.PlayNextItem();
}

void ChannelWatcher::DropEmptyChannels() {
  for (int number = 1; number <= 3; ++number) {
    if (channel(number).Mode() == ChannelMode::kNotOpen || channel(number).Length() != 0) continue;
    channel(number).Command(ChannelCommand::kClose);
    engine_.PlayNextItem();
  }
}

}  // namespace quixair
