// quixair-hunt: plays half hours of random acts on random stations in virtual time and tells which rule was broken by
// which script.

#include <stdlib.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "hunt/crew.h"
#include "hunt/hunted_life.h"
#include "hunt/hunted_run.h"
#include "hunt/shrinking.h"
#include "script/script_language.h"
#include "simulation/temporary_folder.h"

namespace {

namespace hunt = quixair::hunt;
namespace script = quixair::script;
namespace simulation = quixair::simulation;

constexpr const char* kUsage =
    "usage: quixair-hunt [--seeds FROM-TO] [--minutes N] [--pass-over RULE]... [--shrink SECONDS]\n"
    "       quixair-hunt --script SEED          prints the script of a seed\n"
    "       quixair-hunt FILE                   plays a script and tells which rule it breaks\n";

/// What must have happened in a hunt of this many runs or more, or it does not get where it should.
constexpr std::uint64_t kRunsForRareThings = 500;
constexpr const char* kRareThings[] = {"random on the air",
                                       "pick-list on the air",
                                       "overlap to the second channel",
                                       "overlap back to the first",
                                       "live",
                                       "live in a stop set",
                                       "an item of a stop set",
                                       "a time announcement",
                                       "a full disk in a stop set",
                                       "midnight while paused",
                                       "two restarts in one run",
                                       "the output lost",
                                       "a box while on the air",
                                       "a spot out of its dates",
                                       "a run taken up after a power cut"};

constexpr std::chrono::seconds kTimeToHang{2};
constexpr int kLongerForTheDeadly = 10;

struct CommandLine {
  std::uint64_t from = 1;
  std::uint64_t to = 500;
  std::optional<std::chrono::minutes> most;
  std::set<std::string> passed_over;
  std::chrono::seconds shrink{10};
  std::optional<std::uint64_t> script;
  std::string file;
};

std::uint64_t Number(const std::string& text) {
  return static_cast<std::uint64_t>(script::WholeNumberOf(text));
}

CommandLine Parse(int argc, char** argv) {
  CommandLine line;
  bool seeds = false;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (!word.starts_with("--")) {
      line.file = word;
      continue;
    }
    if (++i == argc) throw script::ScriptError(kUsage);
    const std::string value = argv[i];
    const std::size_t dash = value.find('-');
    if (word == "--seeds") {
      seeds = true;
      line.from = Number(value.substr(0, dash));
      line.to = dash == std::string::npos ? line.from : Number(value.substr(dash + 1));
    } else if (word == "--minutes") {
      line.most = std::chrono::minutes(Number(value));
    } else if (word == "--pass-over") {
      line.passed_over.insert(value);
    } else if (word == "--shrink") {
      line.shrink = std::chrono::seconds(Number(value));
    } else if (word == "--script") {
      line.script = Number(value);
    } else {
      throw script::ScriptError(kUsage);
    }
  }
  if (line.most && !seeds) line.to = std::numeric_limits<std::uint64_t>::max() / 2;
  return line;
}

void Print(const hunt::Script& script) {
  for (const std::string& statement : script) std::cout << statement << '\n';
}

int PlayFile(const CommandLine& line) {
  std::ifstream file(line.file);
  if (!file) {
    std::cerr << "cannot read " << line.file << '\n';
    return 2;
  }
  hunt::Script script;
  for (std::string statement; std::getline(file, statement);) script.push_back(statement);
  const hunt::RunResult result = hunt::PlayHunted(script, line.passed_over);
  if (!result.broken) {
    std::cout << "no rule is broken\n";
    return 0;
  }
  std::cout << result.broken->rule << " at " << result.broken->moment << ", line " << result.broken->line + 1
            << ": " << result.broken->what << '\n';
  return 1;
}

void Tell(const hunt::Finding& finding, const hunt::ScreenAtlas& atlas, const CommandLine& line) {
  const hunt::Broken& broken = finding.broken;
  std::cout << "\n# " << broken.rule << ", seed " << finding.seed << ", " << broken.moment << "\n# "
            << broken.what << '\n';
  hunt::Script script = hunt::ScriptOf(finding.seed, atlas);
  script.resize(std::min(script.size(), broken.line + 1));
  const bool deadly = broken.rule == hunt::kRunHangs || broken.rule == hunt::kProgramDies;
  const auto breaks = [&](const hunt::Script& smaller) {
    return hunt::RuleBrokenBy([&] { return hunt::PlayHunted(smaller, line.passed_over); }, kTimeToHang) ==
           broken.rule;
  };
  if (line.shrink.count() == 0) return;
  Print(hunt::Shrunk(std::move(script), breaks, deadly ? kLongerForTheDeadly * line.shrink : line.shrink));
}

int Hunt(const CommandLine& line) {
  const simulation::TemporaryFolder folder;  // also of what dies
  ::setenv("TMPDIR", folder.path().c_str(), 1);
  const hunt::ScreenAtlas atlas = hunt::DrawAtlas();
  const auto start = std::chrono::steady_clock::now();
  const hunt::Bag bag =
      hunt::RunCrew(line.from, line.to, line.most, [&](std::uint64_t seed, const hunt::OnLine& on_line) {
        return hunt::PlayHunted(hunt::ScriptOf(seed, atlas), line.passed_over, on_line);
      });
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::cout << bag.runs << " runs in " << taken.count() << " s, " << bag.findings.size() << " break a rule\n";

  std::map<std::string, std::vector<hunt::Finding>> by_rule;
  for (const hunt::Finding& finding : bag.findings) by_rule[finding.broken.rule].push_back(finding);
  for (const auto& [rule, findings] : by_rule) {
    std::cout << "  " << rule << ": " << findings.size() << ", seeds";
    for (std::size_t i = 0; i < findings.size() && i < 8; ++i) std::cout << ' ' << findings[i].seed;
    std::cout << '\n';
  }
  bool missed = false;
  for (const char* rare : kRareThings) {
    const auto found = bag.sometimes.find(rare);
    std::cout << "  sometimes: " << rare << ' ' << (found == bag.sometimes.end() ? 0 : found->second) << '\n';
    missed = missed || (found == bag.sometimes.end() && bag.runs >= kRunsForRareThings);
  }
  for (const auto& [rule, findings] : by_rule) {
    const auto earliest = std::min_element(
        findings.begin(), findings.end(),
        [](const hunt::Finding& a, const hunt::Finding& b) { return a.broken.line < b.broken.line; });
    Tell(*earliest, atlas, line);
  }
  if (missed) std::cout << "\nwhat must happen sometimes did not\n";
  return missed || !bag.findings.empty() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) try {
  const CommandLine line = Parse(argc, argv);
  if (line.script) {
    Print(hunt::ScriptOf(*line.script, hunt::DrawAtlas()));
    return 0;
  }
  return line.file.empty() ? Hunt(line) : PlayFile(line);
} catch (const script::ScriptError& error) {
  std::cerr << error.what();
  return 2;
}
