#pragma once

// The one door through which events enter the station: clicks, keys and ticks. It ends the program in an
// orderly way when a step asks for it or meets a fault for which it has no rule, it keeps a programming fault
// in one event from silencing the air, and it destroys unloaded screens only when no event of theirs is still
// running.

#include <functional>
#include <string>
#include <vector>

#include "station/platform/dialogs.h"
#include "station/platform/run_time_error.h"

namespace quixair {

/// Thrown by EndProgram; only EventGate catches it.
struct ProgramEnd {
  int exit_code = 0;
};

/// Ends the program from wherever the step stands.
[[noreturn]] void EndProgram(int exit_code = 0);

class EventGate {
 public:
  /// `dialogs` shows the box of a fault without a rule.
  explicit EventGate(Dialogs& dialogs) : dialogs_(dialogs) {}
  EventGate(const EventGate&) = delete;
  EventGate& operator=(const EventGate&) = delete;

  /// Runs one event; events may nest, as a tick while a box is open. After the program's end nothing runs any
  /// more.
  void Enter(const std::function<void()>& event);

  /// Runs `task` when no event is running: now, or at the end of the outermost one.
  void WhenIdle(std::function<void()> task);

  bool ended() const { return ended_; }
  int exit_code() const { return exit_code_; }
  /// For calls that waited inside an event (a box): leaves the event when the program ended meanwhile.
  void LeaveIfEnded() const;

  /// Called once when the program ends.
  std::function<void(int exit_code)> on_end;
  /// Told of an exception that is a fault of this program; the event is lost, the program goes on.
  std::function<void(const std::string& what)> on_fault;

 private:
  void End(int exit_code);
  void ShowUnhandled(const UnhandledRunTimeError& fault);
  void RunIdleTasks();

  Dialogs& dialogs_;
  int depth_ = 0;
  bool ended_ = false;
  int exit_code_ = 0;
  std::vector<std::function<void()>> idle_tasks_;
};

}  // namespace quixair
