#include "station/platform/civil_time.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace quixair {
namespace {

constexpr std::array<const char*, 7> kDayNames = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

int TwelveHour(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}
const char* HalfOfDay(int hour) {
  return hour < 12 ? "AM" : "PM";
}

template <class... Values>
std::string Formatted(const char* pattern, Values... values) {
  std::array<char, 64> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), pattern, values...);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

std::int64_t DaysOf(int year, int month, int day) {
  using std::chrono::sys_days;
  return sys_days{std::chrono::year{year} / month / day}.time_since_epoch().count();
}

std::optional<int> Number(std::string_view digits) {
  if (digits.empty() || digits.size() > 4) return std::nullopt;
  int value = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

int WithCentury(int year, int near_year) {
  if (year >= 100) return year;
  const int candidate = near_year - near_year % 100 + year;
  if (candidate - near_year > 50) return candidate - 100;
  return near_year - candidate >= 50 ? candidate + 100 : candidate;
}

}  // namespace

std::string HourMinuteAmPm(const CivilTime& time) {
  return Formatted("%02d:%02d %s", TwelveHour(time.hour), time.minute, HalfOfDay(time.hour));
}

std::string FourDigitHourMinute(const CivilTime& time) {
  return Formatted("%02d%02d", TwelveHour(time.hour), time.minute);
}

std::string HourMinuteSecondLetter(const CivilTime& time) {
  return Formatted("%d:%02d:%02d %c", TwelveHour(time.hour), time.minute, time.second,
                   time.hour < 12 ? 'a' : 'p');
}

std::string HourMinuteSecondAmPm(const CivilTime& time) {
  return Formatted("%02d:%02d:%02d %s", TwelveHour(time.hour), time.minute, time.second,
                   HalfOfDay(time.hour));
}

std::string HourMinuteSecond24(const CivilTime& time) {
  return Formatted("%02d:%02d:%02d", time.hour, time.minute, time.second);
}

std::string MonthDayYear(const CivilTime& time) {
  return Formatted("%02d-%02d-%02d", time.month, time.day, time.year % 100);
}

std::string MonthDayLongYear(const CivilTime& time) {
  return Formatted("%02d-%02d-%04d", time.month, time.day, time.year);
}

std::string ShortDate(const CivilTime& time) {
  return Formatted("%d/%d/%04d", time.month, time.day, time.year);
}

std::string DayName(const CivilTime& time) {
  return kDayNames.at(static_cast<std::size_t>(time.weekday));
}

std::optional<std::int64_t> CalendarDay(std::string_view month_day_year, int near_year) {
  const std::size_t first = month_day_year.find_first_of("-/");
  if (first == std::string_view::npos) return std::nullopt;
  const std::size_t second = month_day_year.find_first_of("-/", first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const auto month = Number(month_day_year.substr(0, first));
  const auto day = Number(month_day_year.substr(first + 1, second - first - 1));
  const auto year = Number(month_day_year.substr(second + 1));
  if (!month || !day || !year) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{WithCentury(*year, near_year)},
                                         std::chrono::month{static_cast<unsigned>(*month)},
                                         std::chrono::day{static_cast<unsigned>(*day)}};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days{date}.time_since_epoch().count();
}

CivilTime CivilFromMilliseconds(std::int64_t milliseconds) {
  using std::chrono::sys_days;
  const std::chrono::sys_time<std::chrono::milliseconds> moment{std::chrono::milliseconds{milliseconds}};
  const sys_days date = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day fields{date};
  const std::chrono::hh_mm_ss clock{moment - date};
  CivilTime time;
  time.year = static_cast<int>(fields.year());
  time.month = static_cast<int>(static_cast<unsigned>(fields.month()));
  time.day = static_cast<int>(static_cast<unsigned>(fields.day()));
  time.hour = static_cast<int>(clock.hours().count());
  time.minute = static_cast<int>(clock.minutes().count());
  time.second = static_cast<int>(clock.seconds().count());
  time.millisecond = static_cast<int>(clock.subseconds().count());
  time.weekday = static_cast<int>(std::chrono::weekday{date}.c_encoding());
  return time;
}

std::int64_t MillisecondsFromCivil(const CivilTime& time) {
  const std::int64_t seconds =
      DaysOf(time.year, time.month, time.day) * 86400 + time.hour * 3600LL + time.minute * 60LL + time.second;
  return seconds * 1000 + time.millisecond;
}

}  // namespace quixair
