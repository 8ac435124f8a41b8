#include "station/library/item_resolution.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/civil_time.h"

namespace quixair {

std::optional<std::string> FindAudioFile(Files& files, std::string_view drive, std::string_view id) {
  for (const char* extension : {".wav", ".mp3"}) {
    if (files.Exists(station_paths::AudioFile(drive, id, extension))) return extension;
  }
  return std::nullopt;
}

std::string TimeFileName(const CivilTime& now) {
  return std::string(station_paths::kTimeFolder) + "\\T" + FourDigitHourMinute(now) + ".WAV";
}

SpotDateSwitch ReadSpotDateSwitch(Files& files) {
  if (!files.Exists(station_paths::kSpotDateCheck)) return SpotDateSwitch::kUnknown;
  return ReadSetting(files, station_paths::kSpotDateCheck) == "1" ? SpotDateSwitch::kOn
                                                                  : SpotDateSwitch::kOff;
}

std::string SpotDateCaption(SpotDateSwitch value) {
  switch (value) {
    case SpotDateSwitch::kOn:
      return "Spot Date Check: ON";
    case SpotDateSwitch::kOff:
      return "Spot Date Check: OFF";
    case SpotDateSwitch::kUnknown:
      break;
  }
  return "Spot Date Check: ?";
}

std::optional<std::string> SpotDateRefusal(std::string_view start_date, std::string_view kill_date,
                                           const CivilTime& today) {
  const auto now = CalendarDay(MonthDayYear(today), today.year);
  // A text that is no date, such as the "--" of an entry left empty, holds no spot back.
  if (const auto start = CalendarDay(start_date, today.year); start && *start > *now) {
    return " [Start Date is " + std::to_string(*start - *now) + " days away]";
  }
  if (const auto kill = CalendarDay(kill_date, today.year); kill && *kill < *now) {
    return " [Kill Date has Passed by " + std::to_string(*kill - *now) + " days]";
  }
  return std::nullopt;
}

}  // namespace quixair
