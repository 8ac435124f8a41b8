#include "station/recording/audition.h"

namespace quixair {

void PlayByHand(MediaControl& channel) {
  channel.on_play_click = [&channel] {
    const bool ended = channel.Mode() == ChannelMode::kStopped && channel.Position() > 0;
    if (ended) channel.Command(ChannelCommand::kPrev);
    channel.Command(ChannelCommand::kPlay);
  };
  channel.on_pause_click = [&channel] { channel.Command(ChannelCommand::kPause); };
}

}  // namespace quixair
