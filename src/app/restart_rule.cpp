#include "app/restart_rule.h"

#include <chrono>

namespace quixair {
namespace {

using std::chrono::minutes;

constexpr int kBareFrom = 5;
constexpr std::size_t kMostInAMinute = 5;

}  // namespace

RestartPlan RestartRule::After(const Death& death) {
  RestartPlan plan;
  plan.move_on = !death.event.empty() && death.event == last_event_;
  last_event_ = plan.move_on ? std::string() : death.event;
  if (death.lived >= minutes(1)) {
    in_a_row_ = 0;
    waits_ = false;
  }
  // Started again at once however often it happens: any wait would be more silence.
  if (death.from_outside) return plan;
  plan.in_a_row = ++in_a_row_;
  plan.bare = in_a_row_ >= kBareFrom;
  within_a_minute_.push_back(death.at);
  std::erase_if(within_a_minute_, [&death](SteadyTime at) { return death.at - at > minutes(1); });
  waits_ = waits_ || within_a_minute_.size() > kMostInAMinute;
  plan.wait = waits_;
  return plan;
}

}  // namespace quixair
