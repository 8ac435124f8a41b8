#pragma once

// A script as the hunter holds it: a statement a line, in the language of quixair-script.

#include <string>
#include <vector>

namespace quixair::hunt {

using Script = std::vector<std::string>;

/// Stands before the lines in which nothing misbehaves any more and nobody acts.
inline constexpr const char* kCalm = "# calm";

/// With a quarter of a second between two acts of the operator: no person is quicker, and what would come of it is no
/// finding.
Script InAPersonsTime(const Script& script);

}  // namespace quixair::hunt
