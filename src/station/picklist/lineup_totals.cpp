#include "station/picklist/lineup_totals.h"

#include <cmath>
#include <string_view>

#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr int kPlainDecimals = 6;

/// Of the minutes' hundredths: a whole number of seconds and the point of its format.
std::string SecondsText(double minutes) {
  const std::string text = FixedDecimals(minutes, 2);
  const double seconds = NumericValue(std::string_view(text).substr(text.size() - 2)) * 60 / 100;
  return FixedDecimals(NumericValue(ShortestDecimal(seconds, kPlainDecimals).substr(0, 3)), 0) + '.';
}

}  // namespace

std::array<std::string, 3> RemainingTexts(double seconds, bool wide) {
  std::string as_seconds = FixedDecimals(seconds, wide ? 2 : 1);
  if (wide && as_seconds.find('.') < 2) as_seconds.insert(0, 1, '0');
  const std::string as_minutes = FixedDecimals(NumericValue(as_seconds) / 60, 1);
  const std::string as_hours = FixedDecimals(NumericValue(as_minutes) / 60, 2);
  return {as_seconds + " Seconds", as_minutes + " Minutes", as_hours + " Hours"};
}

std::array<std::string, 2> LineupTexts(int total_seconds) {
  const double minutes = total_seconds / 60.0;
  std::string hours = FixedDecimals(minutes / 60, 4);
  if (hours.find('.') < 2) hours.insert(0, 1, '0');  // "00.0000"
  const std::string_view fraction = std::string_view(hours).substr(hours.size() - 4);
  const std::string minutes_text =
      ShortestDecimal(NumericValue(fraction) * 0.006, kPlainDecimals).substr(0, 2);
  return {std::to_string(total_seconds) + " Seconds",
          hours.substr(0, 2) + "h " + minutes_text + "m " + SecondsText(minutes) + 's'};
}

}  // namespace quixair
