#pragma once

// What must hold of a station whatever its operator and the world do: each rule a function of a few lines that looks
// through the witness and says what is wrong, or nothing.

#include <string>
#include <vector>

#include "hunt/witness.h"

namespace quixair::hunt {

struct Rule {
  const char* name;
  std::string (*broken)(const Witness& witness);  // empty while it holds
};

/// Asked at every look.
const std::vector<Rule>& RulesAlways();
/// Asked once, when the run is over.
const std::vector<Rule>& RulesAtTheEnd();

}  // namespace quixair::hunt
