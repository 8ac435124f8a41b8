#pragma once

// The time and date texts of the station's screens, files and logs, each by its pattern, and the calendar
// that compares the dates of spots.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "station/platform/clock.h"

namespace quixair {

std::string HourMinuteAmPm(const CivilTime& time);          // "hh:mm AM/PM": 01:07 PM, midnight 12:00 AM
std::string FourDigitHourMinute(const CivilTime& time);     // first four of "hhmm AM/PM": 0107 for 13:07
std::string HourMinuteSecondLetter(const CivilTime& time);  // "h:mm:ss a/p": 1:07:33 p
std::string HourMinuteSecondAmPm(const CivilTime& time);    // "HH:MM:SS AM/PM": 01:07:33 PM
std::string HourMinuteSecond24(const CivilTime& time);      // "HH:MM:SS": 13:07:33
std::string MonthDayYear(const CivilTime& time);            // "mm-dd-yy": 03-07-01
std::string MonthDayLongYear(const CivilTime& time);        // "MM-DD-YYYY": 03-07-2001
std::string ShortDate(const CivilTime& time);               // "ddddd", the system's short date: 3/7/2001
std::string DayName(const CivilTime& time);                 // "ddd": Mon

/// A date text "mm-dd-yy" as days of the calendar; none when it is no date. A two-digit year is the one that
/// lies nearest to `near_year`, so that a kill date some years ahead never reads as one of the last century.
std::optional<std::int64_t> CalendarDay(std::string_view month_day_year, int near_year);

/// Fields of a moment given as milliseconds of civil time since 1970, and back.
CivilTime CivilFromMilliseconds(std::int64_t milliseconds);
std::int64_t MillisecondsFromCivil(const CivilTime& time);

}  // namespace quixair
