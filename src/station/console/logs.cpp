#include "station/console/logs.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/civil_time.h"

namespace quixair {

Status LogError(Files& files, std::string_view line) {
  return files.Append(station_paths::kErrorLog, WriteForm().Text(line).bytes(), Durability::kFlushed);
}

std::string ErrorLineStart(ModeLetter mode, const CivilTime& now) {
  return std::string(1, static_cast<char>(mode)) + ' ' + MonthDayYear(now) + ' ' +
         HourMinuteSecondLetter(now);
}

}  // namespace quixair
