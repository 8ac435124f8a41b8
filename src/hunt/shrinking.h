#pragma once

// Cuts a script that breaks a rule down to the statements that matter.

#include <chrono>
#include <functional>

#include "hunt/script_text.h"

namespace quixair::hunt {

/// `breaks` tells whether a script still breaks the same rule; it is asked until nothing more can go, or the time is up.
Script Shrunk(Script script, const std::function<bool(const Script&)>& breaks, std::chrono::seconds most);

}  // namespace quixair::hunt
