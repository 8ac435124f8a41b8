#pragma once

// A script as the hunter holds it: a statement a line, in the language of quixair-script.

#include <string>
#include <vector>

namespace quixair::hunt {

using Script = std::vector<std::string>;

/// Stands before the lines in which nothing misbehaves any more and nobody acts.
inline constexpr const char* kCalm = "# calm";

}  // namespace quixair::hunt
