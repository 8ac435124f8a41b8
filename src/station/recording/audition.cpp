#include "station/recording/audition.h"

namespace quixair {

void PlayByHand(MediaControl& channel) {
  channel.on_play_click = [&channel] {
    const bool ended = channel.Mode() == ChannelMode::kStopped && channel.Position() > 0;
    if (ended) channel.Command("Prev");
    channel.Command("Play");
  };
  channel.on_pause_click = [&channel] { channel.Command("Pause"); };
}

}  // namespace quixair
