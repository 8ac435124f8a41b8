#pragma once

// The list of the station's screens by name: the one place to add a new one.

#include "station/screen/screen_registry.h"

namespace quixair {

ScreenRegistry::Catalogue StationScreens();

}  // namespace quixair
