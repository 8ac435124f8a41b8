#include "station/random/overlap_watcher.h"

#include <string>

#include "station/random/random_form1.h"
#include "station/random/random_playback.h"

namespace quixair {
namespace {

constexpr int kTogetherMilliseconds = 10000;

void CloseWhenStopped(MediaControl& channel) {
  if (channel.Mode() == ChannelMode::kStopped) channel.Command(ChannelCommand::kClose);
}

}  // namespace

void OverlapWatcher::Tick() {
  RunState& run = context_.run;
  ChannelBank& channels = context_.screen.Channels;
  AbortCompeting();
  if (run.StopSetActive == 1) return;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap != 0 && run.AudioPaused != 1) {
    CloseWhenStopped(channels.MMControl2);
    CloseWhenStopped(channels.MMControl1);
  }
  if (HeldOff() || !PointReached(overlap)) return;
  ++run.event_counter;
  run.OverlapActive = 1;
  engine_.PlayNextItem();
}

/// The only guard against two songs over each other; it always keeps channel 1.
void OverlapWatcher::AbortCompeting() {
  ChannelBank& channels = context_.screen.Channels;
  if (!channels.TwoSongsBegan(kTogetherMilliseconds)) return;
  context_.faults.Add("Competing Overlap Aborted", " Competing Overlap Aborted");
  channels.MMControl2.Command(ChannelCommand::kClose);
}

bool OverlapWatcher::HeldOff() const {
  const RunState& run = context_.run;
  const RandomSettings& settings = context_.settings;
  const RotationState& rotation = context_.rotation;
  const bool break_next =
      rotation.SongsSinceBreak == settings.SongsPerBreak && settings.BreakType == break_type::kInternalRandom;
  const bool break_running = rotation.SpotsInBreak > 1 && rotation.SpotsInBreak < settings.MaxSpotsPerBreak;
  const bool last_spot = rotation.SpotsInBreak == settings.MaxSpotsPerBreak;
  return break_next || break_running || last_spot || run.LiveRequested == 1 || run.AudioPaused == 1;
}

/// One second before the overlap set, so that the tick that comes up to a second late still keeps it.
bool OverlapWatcher::PointReached(int overlap) {
  const RunState& run = context_.run;
  const MediaControl& first = context_.screen.Channels.MMControl1;
  const MediaControl& second = context_.screen.Channels.MMControl2;
  if (run.ActiveChannel == 1) overlap_point_ = first.Length() / 1000.0 - overlap - 1;
  // Between two items channel 1 is silent for a moment: then the next one is not this tick's to start.
  if (first.Mode() != ChannelMode::kPlaying) return false;
  return run.ActiveChannel != 2 && second.Mode() == ChannelMode::kNotOpen &&
         first.Position() / 1000.0 >= overlap_point_;
}

}  // namespace quixair
