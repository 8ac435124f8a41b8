#pragma once

// Where the mixer's blocks leave: to the device on the air, or to nobody while there is none. In the second
// case the steady clock draws them, so that items take their real time and end when they should. Owned by the
// sound system's core.

#include <chrono>
#include <optional>
#include <span>

#include "sound/mixer.h"
#include "sound/render_token.h"
#include "station/platform/clock.h"

namespace quixair::sound {

class Output {
 public:
  explicit Output(Mixer& mixer) : mixer_(mixer) {}

  /// Who renders. Handed over by the device keeper.
  RenderToken& token() { return token_; }

  /// The owner of the token only, between TryEnter and Leave: no lock, no allocation.
  void RenderBlock(std::span<StereoFrame> out, SteadyTime now);

  /// Renders what fell due by `now` when the token stands at silence, nothing otherwise. Any one thread,
  /// every few milliseconds. What it fell behind it catches up, a part with each call so that the decoders
  /// can follow.
  void SilentStep(SteadyTime now);

 private:
  Mixer& mixer_;
  RenderToken token_;
  std::optional<SteadyTime> next_due_;  // touched only by who holds the token
};

}  // namespace quixair::sound
