#pragma once

// The last net under a run: when nothing sounds although nobody wants silence, the run goes on by itself after
// some seconds as if somebody had pressed Begin Next, and tries again as long as nothing sounds. Rules that each
// hold alone can meet in a way that leaves the air dead until somebody comes; this knows none of them.

#include <optional>

#include "station/platform/clock.h"

namespace quixair {

class AirGuard {
 public:
  static constexpr double kMostSilence = 5;  // seconds

  /// Asked at each tick. `fine`: something sounds, or silence is wanted. Gives the seconds of silence when the run
  /// is to go on now.
  std::optional<double> GoesOnAfter(bool fine, SteadyTime now) {
    if (fine || !silent_since_) {
      silent_since_ = tried_ = now;
      if (fine) silent_since_.reset();
      return std::nullopt;
    }
    if (SecondsBetween(tried_, now) < kMostSilence) return std::nullopt;
    tried_ = now;
    return SecondsBetween(*silent_since_, now);
  }

 private:
  std::optional<SteadyTime> silent_since_;
  SteadyTime tried_{};
};

}  // namespace quixair
