#pragma once

// Registers the recorder's components with the system, as first use and the menu's re-install both do.

#include "station/platform/platform.h"

namespace quixair {

void RegisterAudioDriver(const Platform& platform);

}  // namespace quixair
