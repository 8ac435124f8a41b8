#pragma once

// What every step of Random playback does with an item, of the rotation or of a stop set, once it stands: it is
// looked up, checked and shown.

#include <optional>
#include <string>

#include "station/onair/air_item.h"
#include "station/random/item_selection.h"

namespace quixair {

struct RandomContext;

/// With neither audio file there, the path without an extension cannot be opened, and is what gets reported.
AirItem AirItemOf(const RandomContext& context, const WorkingItem& item, ItemOrigin origin, int row = 0);
/// Why a spot's dates keep it off the air today, when the check is on; none for any other kind.
std::optional<std::string> RefusalOfSpot(RandomContext& context, const std::string& id);
void TellRefusal(RandomContext& context, const std::string& row);
/// The labels; `id` is the recording's, empty when it is none, which differs from what a stop set shows of it.
void ShowItem(RandomContext& context, const WorkingItem& item, const std::string& id);
/// The status text of a run; a stop set has its own.
std::string PlaybackText(bool stop_set);

}  // namespace quixair
