#include "hunt/hunted_run.h"

#include <ostream>

#include "hunt/rules.h"
#include "hunt/witness.h"
#include "script/script_runner.h"
#include "simulation/silent_wave.h"
#include "simulation/temporary_folder.h"
#include "simulation/world.h"

namespace quixair::hunt {
namespace {

class HuntedRun {
 public:
  HuntedRun(const Script& script, const std::set<std::string>& passed_over,
            const std::function<void(std::size_t)>& on_line)
      : script_(script), passed_over_(passed_over), on_line_(on_line) {
    runner_.AllowWorld();
    runner_.Play("quiet");
    witness_.on_look = [this] { Ask(RulesAlways()); };
  }

  RunResult Play() {
    for (line_ = 0; line_ < script_.size() && !result_.broken; ++line_) {
      if (on_line_) on_line_(line_);
      witness_.Begin(script_[line_]);
      const auto outcome = runner_.Play(script_[line_]);
      if (outcome.exit_code == 2) Break("script", outcome.why + ": " + script_[line_]);
      witness_.End();
    }
    if (line_ > 0) --line_;
    Ask(RulesAtTheEnd());
    result_.sometimes = witness_.sometimes();
    return result_;
  }

 private:
  void Ask(const std::vector<Rule>& rules) {
    for (const Rule& rule : rules) {
      if (result_.broken) return;
      if (passed_over_.count(rule.name) != 0) continue;
      const std::string what = rule.broken(witness_);
      if (!what.empty()) Break(rule.name, what);
    }
  }

  void Break(std::string rule, std::string what) {
    if (result_.broken) return;
    result_.broken = {std::move(rule), std::move(what), script::Stamp(station_.time().Now()), line_};
  }

  const Script& script_;
  const std::set<std::string>& passed_over_;
  const std::function<void(std::size_t)>& on_line_;
  std::size_t line_ = 0;
  RunResult result_;
  simulation::TemporaryFolder folder_;
  std::ostream nowhere_{nullptr};
  simulation::SimulatedStation station_{simulation::EmptyDrives(folder_.path()), CivilTime{},
                                        simulation::LengthOfWave, 1};
  script::ScriptRunner runner_{station_, nowhere_, nowhere_};
  Witness witness_{station_};
};

}  // namespace

RunResult PlayHunted(const Script& script, const std::set<std::string>& passed_over,
                     const std::function<void(std::size_t)>& on_line) {
  return HuntedRun(script, passed_over, on_line).Play();
}

}  // namespace quixair::hunt
