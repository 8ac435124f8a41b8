#include "hunt/shrinking.h"

#include <algorithm>

#include "script/script_language.h"

namespace quixair::hunt {
namespace {

using SteadyClock = std::chrono::steady_clock;

/// The clock, the seed and the answers, without which a script would not play the same twice.
constexpr std::size_t kLinesThatStay = 3;

Script Without(const Script& script, std::size_t from, std::size_t count) {
  Script rest;
  for (std::size_t i = 0; i < script.size(); ++i) {
    if (i < kLinesThatStay || i < from || i >= from + count) rest.push_back(script[i]);
  }
  return rest;
}

bool IsWait(const std::string& statement) {
  return statement.starts_with("advance ");
}

std::chrono::milliseconds WaitOf(const std::string& statement) {
  return script::SpanOf(statement.substr(std::string("advance ").size()));
}

/// What passes between two acts is one statement.
Script WithWaitsTogether(const Script& script) {
  Script together;
  for (const std::string& statement : script) {
    if (IsWait(statement) && !together.empty() && IsWait(together.back())) {
      const auto sum = WaitOf(together.back()) + WaitOf(statement);
      together.back() = "advance " + std::to_string(sum.count()) + "ms";
    } else {
      together.push_back(statement);
    }
  }
  return together;
}

}  // namespace

Script Shrunk(Script script, const std::function<bool(const Script&)>& breaks, std::chrono::seconds most) {
  const auto end = SteadyClock::now() + most;
  const auto keep_if_breaking = [&](Script smaller) {
    smaller = InAPersonsTime(smaller);
    if (smaller.size() >= script.size()) return false;
    if (SteadyClock::now() > end || !breaks(smaller)) return false;
    script = std::move(smaller);
    return true;
  };
  // What comes behind the fault goes first.
  std::size_t least = 1;
  std::size_t enough = script.size();
  while (least < enough && SteadyClock::now() < end) {
    const std::size_t middle = (least + enough) / 2;
    const bool broken = breaks(Script(script.begin(), script.begin() + static_cast<std::ptrdiff_t>(middle)));
    (broken ? enough : least) = broken ? middle : middle + 1;
  }
  script.resize(enough);
  bool smaller = true;
  while (smaller && SteadyClock::now() < end) {
    smaller = false;
    for (std::size_t count = script.size() / 2; count >= 1; count /= 2) {
      for (std::size_t from = 0; from < script.size();) {
        if (keep_if_breaking(Without(script, from, count))) {
          smaller = true;
        } else {
          from += count;
        }
      }
    }
    Script together = WithWaitsTogether(script);
    if (together.size() < script.size()) smaller = keep_if_breaking(std::move(together)) || smaller;
  }
  return script;
}

}  // namespace quixair::hunt
