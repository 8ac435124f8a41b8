#pragma once

// Where the Timer controls get their ticks from: the desktop's come from the toolkit, the simulation's from a
// virtual queue. All ticks arrive on the user interface thread. Missed shots are not queued: after a long
// step a timer ticks once and goes on from there. Timers that are due at the same moment tick in the order in
// which they were made.

#include <chrono>
#include <functional>
#include <memory>

namespace quixair {

class TimerShots {
 public:
  virtual ~TimerShots() = default;  // a destroyed timer never ticks again, not even from within its own tick
  /// Ticks every `interval` (more than 0) from now on; a running timer starts its interval anew.
  virtual void Start(std::chrono::milliseconds interval) = 0;
  virtual void Stop() = 0;
};

class TimerService {
 public:
  virtual ~TimerService() = default;
  /// A stopped timer. `tick` may start, stop or destroy timers, this one included.
  virtual std::unique_ptr<TimerShots> MakeTimer(std::function<void()> tick) = 0;
};

}  // namespace quixair
