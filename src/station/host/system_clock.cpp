#include "station/host/system_clock.h"

#include <ctime>

#include "station/platform/civil_time.h"

namespace quixair {

CivilTime SystemClock::Now() const {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  CivilTime time;
  time.year = local.tm_year + 1900;
  time.month = local.tm_mon + 1;
  time.day = local.tm_mday;
  time.hour = local.tm_hour;
  time.minute = local.tm_min;
  time.second = local.tm_sec < 60 ? local.tm_sec : 59;
  time.millisecond = static_cast<int>(now.tv_nsec / 1'000'000);
  time.weekday = local.tm_wday;
  return time;
}

SteadyTime SystemClock::Steady() const {
  return std::chrono::steady_clock::now();
}

}  // namespace quixair
