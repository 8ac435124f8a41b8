#include "station/random/channel_watcher.h"

#include "station/random/day_scheduler.h"
#include "station/random/overlap_watcher.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"
#include "station/random/run_controls.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

ChannelWatcher::ChannelWatcher(RandomContext& context, SequencingEngine& engine, RunControls& controls,
                               DayScheduler& scheduler)
    : context_(context),
      deck_(context.air.deck),
      engine_(engine),
      controls_(controls),
      scheduler_(scheduler) {}

void ChannelWatcher::Tick() {
  context_.screen.Channels.UpdateLabels();
  scheduler_.ChangeAtMidnight();
  if (context_.air.PauseNextPending) {
    context_.air.PauseNextPending = false;
    controls_.Pause();
  }
  context_.air.ShowElapsed();
  if (WaitWhilePaused()) {
    context_.air.Guard(true, {});  // a silence goes on from here
    return;
  }
  RetireFirstAfterOverlap();
  HandBack();
  StartWhenBothClosed();
  EndSecondAfterHandBack();
  EndFirst();
  EndSecond();
  EndThird();
  DropEmptyChannels();
  deck_.SweepEnded();
  context_.air.Guard(false, [this] { controls_.BeginNext(); });
  scheduler_.Scan();
}

/// What an operator paused by hand, or holds for an announcer, is not the override's.
bool ChannelWatcher::WaitWhilePaused() {
  if (!deck_.AudioPaused()) return false;
  const int override_seconds = context_.settings.PauseOverrideSecs;
  if (deck_.hold() == Hold::kPauseEvent && override_seconds != 0 && deck_.elapsed() >= override_seconds)
    controls_.BeginNext();
  return true;
}

void ChannelWatcher::RetireFirstAfterOverlap() {
  if (!deck_.ended(1) || deck_.active != ActiveChannel::kSecond || !deck_.OverlapActive) return;
  deck_.End(1, EndCause::kEndOfFile);
  deck_.active = ActiveChannel::kFirstRetiring;
}

/// Counted by the clock from the item's start, not by the channel's position.
void ChannelWatcher::HandBack() {
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap == 0 || OverlapHeldOff(context_) || !deck_.plays(2) || !deck_.closed(1)) return;
  if (deck_.length(2) - deck_.elapsed() > overlap + 1) return;
  deck_.OverlapHandBack = true;
  deck_.active = ActiveChannel::kFirst;
  deck_.OverlapActive = false;
  engine_.PlayNextItem();
}

/// Starts, or starts again, after anything that left the channels silent.
void ChannelWatcher::StartWhenBothClosed() {
  if (!deck_.closed(1) || !deck_.closed(2)) return;
  deck_.OverlapActive = false;
  deck_.active = ActiveChannel::kFirst;
  engine_.PlayNextItem();
}

void ChannelWatcher::EndSecondAfterHandBack() {
  if (!deck_.ended(2) || !deck_.OverlapHandBack) return;
  deck_.End(2, EndCause::kEndOfFile);
  deck_.OverlapActive = false;
  deck_.OverlapHandBack = false;
}

/// The ordinary end of an item.
void ChannelWatcher::EndFirst() {
  if (!deck_.ended(1) || deck_.OverlapActive) return;
  deck_.End(1, EndCause::kEndOfFile);
  engine_.PlayNextItem();
}

void ChannelWatcher::EndSecond() {
  if (!deck_.ended(2) || !deck_.OverlapActive || deck_.active == ActiveChannel::kSecond) return;
  deck_.End(2, EndCause::kEndOfFile);
  if (deck_.active == ActiveChannel::kFirst) deck_.OverlapActive = false;
}

/// Nothing reaches it: channel 3 is never given a file.
void ChannelWatcher::EndThird() {
  if (!deck_.ended(3)) return;
  deck_.End(3, EndCause::kEndOfFile);
  engine_.PlayNextItem();
}

void ChannelWatcher::DropEmptyChannels() {
  for (int number = 1; number <= 3; ++number) {
    if (deck_.closed(number) || deck_.length(number) != 0) continue;
    deck_.End(number, EndCause::kAborted);
    engine_.PlayNextItem();
  }
}

}  // namespace quixair
