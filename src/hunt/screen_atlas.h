#pragma once

// What a person can act upon: the controls of every screen, taken from the screens themselves, so that a new one is
// hunted without a word here.

#include <map>
#include <string>
#include <vector>

#include "station/screen/controls.h"

namespace quixair::hunt {

struct AtlasControl {
  std::string name;
  ControlKind kind = ControlKind::kLabel;
};

/// By the name of the screen; without labels, frames, timers and what else nobody acts upon.
using ScreenAtlas = std::map<std::string, std::vector<AtlasControl>>;

ScreenAtlas DrawAtlas();

}  // namespace quixair::hunt
