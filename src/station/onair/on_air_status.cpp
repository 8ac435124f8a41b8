#include "station/onair/on_air_status.h"

#include "station/onair/channel_bank.h"

namespace quixair {

OnAirStatus StatusOf(const ChannelBank& channels, const RunFlags& flags) {
  const MediaControl& first = channels.MMControl1;
  const MediaControl& second = channels.MMControl2;
  const bool on_second = flags.active_channel == 2 || first.Mode() == ChannelMode::kNotOpen;
  const MediaControl& active = on_second && second.Mode() != ChannelMode::kNotOpen ? second : first;
  OnAirStatus status;
  status.length_seconds = active.Length() / 1000.0;
  status.elapsed_seconds = active.Position() / 1000.0;
  if (!flags.running) return status;
  if (flags.live_now) {
    status.state = AirState::kLive;
  } else if (flags.paused) {
    status.state = AirState::kPaused;
  } else {
    status.state = active.Mode() == ChannelMode::kPlaying ? AirState::kPlaying : AirState::kSilent;
  }
  return status;
}

}  // namespace quixair
