#pragma once

// One moment of sound on its way from a file to the output, and the one rate at which everything inside this
// folder runs. Plain values without an owner.

#include <cmath>

namespace quixair::sound {

struct StereoFrame {
  float left = 0;
  float right = 0;

  bool operator==(const StereoFrame&) const = default;
};

/// Frames a second of the mixer, whatever the files and the device have. Fixed for the life of the program,
/// so that a position counted in frames stays right when another device takes over; the device layer converts
/// where it must.
constexpr int kMixRate = 48000;

/// Damaged files decode to peaks of thousands and to no numbers at all; neither may reach the mixer.
inline float Tamed(float sample) {
  if (std::isnan(sample)) return 0.0F;
  return sample > 1.0F ? 1.0F : (sample < -1.0F ? -1.0F : sample);
}

}  // namespace quixair::sound
