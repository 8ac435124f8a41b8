#pragma once

// Work of many small steps that must not hold up the air, such as reading ten thousand data files: it is done
// in portions from a Timer control, with the event loop between them. The screen owns it beside its timer;
// when the screen goes, the work goes with it.

#include <chrono>
#include <functional>

#include "station/screen/controls.h"

namespace quixair {

class PortionedWork {
 public:
  /// A portion ends after this time, or after so many steps. The air polls its channels five times a second.
  static constexpr std::chrono::milliseconds kPortion{20};
  static constexpr int kMostSteps = 250;

  /// The timer outlives this and serves nothing else.
  explicit PortionedWork(Timer& timer);
  PortionedWork(const PortionedWork&) = delete;
  PortionedWork& operator=(const PortionedWork&) = delete;

  struct Task {
    std::function<bool()> step;      // true while there is more to do
    std::function<void()> progress;  // behind each portion with more to come; may be empty
    std::function<void()> done;
  };
  /// Replaces what is going on. The first portion is done at once: what is small is done when it returns.
  void Start(Task task);
  /// With nothing done any more.
  void Stop();

 private:
  void DoPortion();

  Timer& timer_;
  Task task_;
};

}  // namespace quixair
