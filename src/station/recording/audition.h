#pragma once

// The transport buttons of a screen's own channel, on which an operator listens to a recording.

#include "station/screen/controls.h"

namespace quixair {

/// The channel of the recording screens, apart from the four that are on the air.
inline constexpr int kAuditionChannel = 9;

/// Play starts, goes on, or plays once more from the top what has ended; Pause holds.
void PlayByHand(MediaControl& channel);

}  // namespace quixair
