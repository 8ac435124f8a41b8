#pragma once

// The half hour of a run, drawn from the seed and written as statements: an operator who does any act on any screen at
// random moments and a world that misbehaves. Which of them come and how often is drawn anew for each run, most of them
// not at all, so that rare combinations come. At the end everything is as it should be, and nobody acts.

#include <cstdint>

#include "hunt/screen_atlas.h"
#include "hunt/script_text.h"

namespace quixair::hunt {

/// The whole script of a seed, the making of its station included.
Script ScriptOf(std::uint64_t seed, const ScreenAtlas& atlas);

}  // namespace quixair::hunt
