#pragma once

// The two times of the station. Civil local time is for schedules, logs and everything an operator reads; it
// jumps when somebody sets the PC's clock or the season changes. Steady time is for durations; it never
// jumps. They have different types so that the one is never subtracted from the other.

#include <chrono>

namespace quixair {

struct CivilTime {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;
  int millisecond = 0;
  int weekday = 6;  // 0 Sunday to 6 Saturday

  bool operator==(const CivilTime&) const = default;
};

using SteadyTime = std::chrono::steady_clock::time_point;

/// Nothing else in the station asks the system for the time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual CivilTime Now() const = 0;
  virtual SteadyTime Steady() const = 0;
};

/// Seconds from `from` to `to`, as the labels of the playback screens count them.
inline double SecondsBetween(SteadyTime from, SteadyTime to) {
  return std::chrono::duration<double>(to - from).count();
}

}  // namespace quixair
