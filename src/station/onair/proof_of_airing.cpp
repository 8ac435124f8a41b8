#include "station/onair/proof_of_airing.h"

#include "station/platform/civil_time.h"

namespace quixair {

void ProofOfAiring::ItemBegan(int /*channel*/, const AirItem& item) {
  if (item.origin != ItemOrigin::kStopSet) Write(item);
}

void ProofOfAiring::Write(const AirItem& item) const {
  if (!switches_.verification_on() || !IsVerified(item.id)) return;
  const CivilTime now = platform_.clock.Now();
  on_written_(LogVerification(platform_.files, now, item.id, LogDescription(item.id, item.first_text),
                              HourMinuteSecondAmPm(now), mode_));
}

}  // namespace quixair
