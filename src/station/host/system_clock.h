#pragma once

// The PC's own clock.

#include "station/platform/clock.h"

namespace quixair {

class SystemClock : public Clock {
 public:
  CivilTime Now() const override;
  SteadyTime Steady() const override;
};

}  // namespace quixair
