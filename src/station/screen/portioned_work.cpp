#include "station/screen/portioned_work.h"

#include <utility>

#include "station/platform/clock.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {
constexpr std::chrono::milliseconds kPause{5};  // lets other timers and the window system in
}

PortionedWork::PortionedWork(Timer& timer) : timer_(timer) {
  timer_.on_tick = [this] { DoPortion(); };
}

void PortionedWork::Start(Task task) {
  task_ = std::move(task);
  DoPortion();
}

void PortionedWork::Stop() {
  timer_.SetInterval(std::chrono::milliseconds(0));
}

void PortionedWork::DoPortion() {
  const Clock& clock = timer_.screen().platform().clock;
  const auto end = clock.Steady() + kPortion;
  bool more = true;
  for (int steps = 0; more && steps < kMostSteps && clock.Steady() < end; ++steps) more = task_.step();
  if (!more) {
    Stop();
    task_.done();
    return;
  }
  timer_.SetInterval(kPause);
  if (task_.progress) task_.progress();
}

}  // namespace quixair
