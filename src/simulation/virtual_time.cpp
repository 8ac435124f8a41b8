#include "simulation/virtual_time.h"

#include <algorithm>
#include <utility>

#include "station/platform/civil_time.h"

namespace quixair::simulation {

class VirtualTime::Shots : public TimerShots {
 public:
  Shots(VirtualTime& time, std::function<void()> tick) : time_(time), tick_(std::move(tick)) {
    time_.timers_.push_back(this);
  }
  ~Shots() override { std::erase(time_.timers_, this); }
  Shots(const Shots&) = delete;
  Shots& operator=(const Shots&) = delete;

  void Start(std::chrono::milliseconds interval) override {
    interval_ = interval;
    due_ = time_.now_ + interval;
    running_ = true;
  }
  void Stop() override { running_ = false; }

  bool running() const { return running_; }
  SteadyTime due() const { return due_; }
  void Fire() {
    due_ += interval_;
    const auto tick = tick_;  // the tick may destroy this timer
    tick();
  }

 private:
  VirtualTime& time_;
  std::function<void()> tick_;
  std::chrono::milliseconds interval_{0};
  SteadyTime due_{};
  bool running_ = false;
};

VirtualTime::VirtualTime(const CivilTime& civil) {
  SetCivil(civil);
}

std::int64_t VirtualTime::CivilMilliseconds() const {
  return civil_at_set_ + std::chrono::duration_cast<std::chrono::milliseconds>(now_ - civil_set_at_).count();
}

CivilTime VirtualTime::Now() const {
  return CivilFromMilliseconds(CivilMilliseconds());
}

void VirtualTime::SetCivil(const CivilTime& civil) {
  civil_at_set_ = MillisecondsFromCivil(civil);
  civil_set_at_ = now_;
}

std::unique_ptr<TimerShots> VirtualTime::MakeTimer(std::function<void()> tick) {
  return std::make_unique<Shots>(*this, std::move(tick));
}

VirtualTime::Shots* VirtualTime::NextDue(SteadyTime limit) const {
  Shots* next = nullptr;
  for (Shots* timer : timers_) {
    if (timer->running() && timer->due() <= limit && (next == nullptr || timer->due() < next->due()))
      next = timer;
  }
  return next;
}

void VirtualTime::Advance(std::chrono::milliseconds span) {
  const SteadyTime end = now_ + span;
  while (Shots* timer = NextDue(end)) {
    now_ = std::max(now_, timer->due());
    timer->Fire();
    if (interrupted && interrupted()) return;
  }
  now_ = std::max(now_, end);  // a tick that held a box open may have passed it
}

void VirtualTime::AdvanceUntil(int hour, int minute, int second) {
  constexpr std::int64_t kDay = 86'400'000;
  const std::int64_t wanted = ((hour * 60LL + minute) * 60 + second) * 1000;
  std::int64_t span = wanted - CivilMilliseconds() % kDay;
  if (span <= 0) span += kDay;
  Advance(std::chrono::milliseconds(span));
}

}  // namespace quixair::simulation
