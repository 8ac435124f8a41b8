#pragma once

// How long the item in turn has been on the air, by steady time and without its pauses. A pause and a live break
// are items to it too.

#include "station/platform/clock.h"

namespace quixair {

class ItemClock {
 public:
  explicit ItemClock(const Clock& clock) : clock_(clock) {}

  /// From zero.
  void Start() { start_ = held_ = clock_.Steady(); }
  void Hold() { held_ = clock_.Steady(); }
  /// What was held does not count.
  void GoOn() { start_ += clock_.Steady() - held_; }
  /// In seconds. It runs on while the item is held, as the screens show it.
  double elapsed() const { return SecondsBetween(start_, clock_.Steady()); }

 private:
  const Clock& clock_;
  SteadyTime start_{};
  SteadyTime held_{};
};

}  // namespace quixair
