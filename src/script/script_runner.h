#pragma once

// Plays a script: the acts of an operator on a station in virtual time, and what is expected to be seen. It is the second
// front end of the station, without display or sound.

#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <string_view>

#include "script/script_language.h"
#include "script/trace.h"
#include "simulation/simulated_station.h"
#include "simulation/world.h"

namespace quixair::script {

class ScriptRunner {
 public:
  /// `out` gets the trace and what is shown, `errors` the line and reason of a failure.
  ScriptRunner(simulation::SimulatedStation& station, std::ostream& out, std::ostream& errors);

  /// Whether the script may act as the world does: never on a station that is somebody's own.
  void AllowWorld() { world_allowed_ = true; }

  /// 0 when all went well, 1 at the first failed expectation or unexpected box, 2 when the script itself is wrong.
  int Run(std::istream& script);

  struct Outcome {
    int exit_code = 0;
    std::string why;  // not 0
  };
  /// One line of a script.
  Outcome Play(std::string_view line);

 private:
  using Arguments = std::vector<Word>;
  using Statement = void (ScriptRunner::*)(const Arguments&);
  struct Entry {
    Statement statement;
    std::size_t least;
    std::size_t most;
    bool of_the_world = false;
  };
  static const std::map<std::string, Entry, std::less<>>& Statements();
  void Execute(const std::vector<Word>& words);

  void ClockStatement(const Arguments& words);
  void StartStatement(const Arguments& words);
  void MenuStatement(const Arguments& words);
  void OpenStatement(const Arguments& words);
  void ClickStatement(const Arguments& words);
  void DoubleClickStatement(const Arguments& words);
  void EnterStatement(const Arguments& words);
  void ControlsStatement(const Arguments& words);
  void SelectStatement(const Arguments& words);
  void TypeStatement(const Arguments& words);
  void ClearStatement(const Arguments& words);
  void LeaveStatement(const Arguments& words);
  void TickStatement(const Arguments& words);
  void CloseStatement(const Arguments& words);
  void AnswerStatement(const Arguments& words);
  void AdvanceStatement(const Arguments& words);
  void UntilStatement(const Arguments& words);
  void ShowStatement(const Arguments& words);
  void StateStatement(const Arguments& words);
  void ExpectStatement(const Arguments& words);
  void ExpectRowStatement(const Arguments& words);
  void ExpectBoxStatement(const Arguments& words);
  void PowerCutStatement(const Arguments& words);
  void TryStatement(const Arguments& words);
  void AnswerOthersStatement(const Arguments& words);
  void ThinkStatement(const Arguments& words);

  void SeedStatement(const Arguments& words);
  void PutStatement(const Arguments& words);
  void AudioStatement(const Arguments& words);
  void TearStatement(const Arguments& words);
  void RemoveStatement(const Arguments& words);
  void AwayStatement(const Arguments& words);
  void BackStatement(const Arguments& words);
  void FailStatement(const Arguments& words);
  void OutputStatement(const Arguments& words);
  void InputStatement(const Arguments& words);
  void MendStatement(const Arguments& words);

  void QuietStatement(const Arguments& words);
  void TraceStatement(const Arguments& words);

  Screen& ScreenNamed(std::string_view name);
  Control& ControlNamed(const Word& word);
  /// The control as `Kind`, fit to be acted upon by a person.
  template <class Kind>
  Kind& Acting(const Word& word);
  int RowNamed(const ListBox& list, const Word& word);

  simulation::SimulatedStation& station_;
  std::ostream& out_;
  std::ostream& errors_;
  simulation::World world_;
  Trace trace_;
  bool world_allowed_ = false;
  std::string failure_;  // of the running statement
};

}  // namespace quixair::script
