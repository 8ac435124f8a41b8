#include "station/onair/air_fault_log.h"

namespace quixair {

void AirFaultLog::Add(const std::string& row, const std::string& logged) {
  if (!IsDue(row)) return;
  last_line_ = clock_.Steady();
  ++lines_;
  add_row_(row);
  SkipAndGoOn(LogError(files_, ErrorLineStart(mode_, clock_.Now()) + logged));
}

bool AirFaultLog::IsDue(const std::string& row) {
  return told_.insert(row).second || lines_ < kLinesPerOutage ||
         SecondsBetween(last_line_, clock_.Steady()) >= kSecondsBetweenLines;
}

}  // namespace quixair
