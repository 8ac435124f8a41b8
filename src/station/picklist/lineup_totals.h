#pragma once

// The texts of Pick-List playback's totals. Their arithmetic goes through texts and cuts digits off, so that
// a minutes text may carry a point; stations know these figures, and they are kept as they are.

#include <array>
#include <string>

namespace quixair {

/// "137.5 Seconds", "2.3 Minutes", "0.04 Hours".
/// `wide`: the seconds as "05.25".
std::array<std::string, 3> RemainingTexts(double seconds, bool wide = false);

/// "1620 Seconds" and "00h 27m 0.s".
std::array<std::string, 2> LineupTexts(int total_seconds);

}  // namespace quixair
