#pragma once

// One run: a script played on an empty station, the rules asked all the while.

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>

#include "hunt/script_text.h"

namespace quixair::hunt {

struct Broken {
  std::string rule;
  std::string what;
  std::string moment;    // of the station's clock
  std::size_t line = 0;  // of the script, from 0
};

struct RunResult {
  std::optional<Broken> broken;  // the first
  std::set<std::string> sometimes;
};

/// `passed_over`: names of rules that are not asked. `on_line` is told of each line before it is played.
RunResult PlayHunted(const Script& script, const std::set<std::string>& passed_over = {},
                     const std::function<void(std::size_t line)>& on_line = {});

}  // namespace quixair::hunt
