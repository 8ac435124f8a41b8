#pragma once

// Many runs at once, each process taking its share of the seeds. A run that ends its process, or hangs, is a finding like
// any other.

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "hunt/hunted_run.h"

namespace quixair::hunt {

struct Finding {
  std::uint64_t seed = 0;
  Broken broken;
};

struct Bag {
  std::uint64_t runs = 0;
  std::vector<Finding> findings;         // in the order of their seeds
  std::map<std::string, int> sometimes;  // in how many runs each rare thing has happened
};

/// Told by a run before each line, so that it is known where its process came to its end.
using OnLine = std::function<void(std::size_t line)>;

inline constexpr const char* kRunHangs = "run-hangs";
inline constexpr const char* kProgramDies = "program-dies";

/// Seeds `from` to `to`, or as far as the time goes. `run` is called in the processes.
Bag RunCrew(std::uint64_t from, std::uint64_t to, std::optional<std::chrono::minutes> most,
            const std::function<RunResult(std::uint64_t seed, const OnLine& on_line)>& run);

/// The rule that a run breaks, found out in a process of its own; empty for none.
std::string RuleBrokenBy(const std::function<RunResult()>& run, std::chrono::seconds most);

}  // namespace quixair::hunt
