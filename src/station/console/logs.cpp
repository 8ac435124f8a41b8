#include "station/console/logs.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"

namespace quixair {
namespace {
bool IsLegalId(std::string_view id) {
  return StartsWithIgnoringCase(id, "LL");
}
}  // namespace

Status LogError(Files& files, std::string_view line) {
  return files.Append(station_paths::kErrorLog, WriteForm().Text(line).bytes(), Durability::kFlushed);
}

std::string ErrorLineStart(ModeLetter mode, const CivilTime& now) {
  return std::string(1, static_cast<char>(mode)) + ' ' + MonthDayYear(now) + ' ' +
         HourMinuteSecondLetter(now);
}

Status LogVerification(Files& files, const CivilTime& now, std::string_view id, std::string_view description,
                       std::string_view start_time, ModeLetter mode) {
  const std::string path = station_paths::TemplateFile(DayName(now) + ".LOG");
  const std::string letter(1, static_cast<char>(mode));
  const WriteForm line = WriteForm().Texts({MonthDayLongYear(now), start_time, id, description, letter});
  return files.Append(path, line.bytes(), Durability::kFlushed);
}

bool IsVerified(std::string_view id) {
  return StartsWithIgnoringCase(id, "S") || StartsWithIgnoringCase(id, "M") || IsLegalId(id);
}

std::string_view LogDescription(std::string_view id, std::string_view field4) {
  return IsLegalId(id) ? std::string_view("*LEGAL I.D.*") : field4;
}

}  // namespace quixair
