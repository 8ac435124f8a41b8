#pragma once

// Virtual time: a clock that stands still between events and a queue of timers that it jumps to, in the order in which
// they are due, equal ones in the order of their making. A day passes in seconds and every run is the same. Setting the
// civil clock moves no timer, as on a real PC.

#include <chrono>
#include <cstdint>
#include <vector>

#include "station/platform/clock.h"
#include "station/platform/timers.h"

namespace quixair::simulation {

class VirtualTime : public Clock, public TimerService {
 public:
  explicit VirtualTime(const CivilTime& civil);

  CivilTime Now() const override;
  SteadyTime Steady() const override { return now_; }
  std::unique_ptr<TimerShots> MakeTimer(std::function<void()> tick) override;

  /// Sets the civil clock; steady time and timers go on as they were.
  void SetCivil(const CivilTime& civil);
  /// Lets time pass; every timer due on the way ticks at its moment.
  void Advance(std::chrono::milliseconds span);
  /// Until the civil clock next reads this time of day; a whole day when it reads so now.
  void AdvanceUntil(int hour, int minute, int second);

  /// Looked at after each tick: true ends an Advance early, as the program's end does.
  std::function<bool()> interrupted;

 private:
  class Shots;
  std::int64_t CivilMilliseconds() const;
  Shots* NextDue(SteadyTime limit) const;

  SteadyTime now_{};
  SteadyTime civil_set_at_{};
  std::int64_t civil_at_set_ = 0;
  std::vector<Shots*> timers_;  // in the order of their making; a screen has few
};

}  // namespace quixair::simulation
