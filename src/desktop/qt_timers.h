#pragma once

// The station's timers on the toolkit's event loop. One precise toolkit timer wakes up for whichever is due
// first; the order of ticks is this class's own, since the toolkit promises none for timers that are due
// together. It must outlive the timers it made.

#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "station/platform/timers.h"

namespace quixair::desktop {

class QtTimers : public TimerService {
 public:
  using Milliseconds = std::chrono::milliseconds;
  /// `now` counts steadily; the default is the PC's steady clock.
  explicit QtTimers(std::function<Milliseconds()> now = SteadyNow);
  QtTimers(const QtTimers&) = delete;
  QtTimers& operator=(const QtTimers&) = delete;
  ~QtTimers() override;

  std::unique_ptr<TimerShots> MakeTimer(std::function<void()> tick) override;
  /// Ticks what is due, each timer once at most. The event loop calls it.
  void RunDue();

  static Milliseconds SteadyNow();

 private:
  struct Entry;
  class Shots;

  void Wake();
  std::shared_ptr<Entry> NextDue(Milliseconds latest) const;

  std::function<Milliseconds()> now_;
  std::vector<std::shared_ptr<Entry>> entries_;  // in the order of their making
  QTimer alarm_;
};

}  // namespace quixair::desktop
