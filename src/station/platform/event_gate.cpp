#include "station/platform/event_gate.h"

#include <utility>

namespace quixair {

void EndProgram(int exit_code) {
  throw ProgramEnd{exit_code};
}

void EventGate::Enter(const std::function<void()>& event) {
  if (ended_) return;
  ++depth_;
  try {
    event();
  } catch (const ProgramEnd& end) {
    End(end.exit_code);
  } catch (const UnhandledRunTimeError& fault) {
    ShowUnhandled(fault);
    End(1);
  } catch (const std::exception& fault) {
    if (on_fault) on_fault(fault.what());
  }
  --depth_;
  if (depth_ == 0) RunIdleTasks();
}

void EventGate::WhenIdle(std::function<void()> task) {
  idle_tasks_.push_back(std::move(task));
  if (depth_ == 0) RunIdleTasks();
}

void EventGate::LeaveIfEnded() const {
  if (ended_) throw ProgramEnd{exit_code_};
}

void EventGate::End(int exit_code) {
  if (std::exchange(ended_, true)) return;
  exit_code_ = exit_code;
  if (on_end) on_end(exit_code);
}

std::string FaultText(const UnhandledRunTimeError& fault) {
  const std::string text = "Run-time error '" + std::to_string(static_cast<int>(fault.error())) + "'";
  return fault.remedy().empty() ? text : text + "\n" + fault.remedy();
}

void EventGate::ShowUnhandled(const UnhandledRunTimeError& fault) {
  try {
    dialogs_.MessageBox(FaultText(fault), box_style::kOk + box_style::kCritical, "Quixair");
  } catch (const ProgramEnd&) {
    // The box itself was left because the program has ended: what was to be done is done.
  }
}

void EventGate::RunIdleTasks() {
  while (!idle_tasks_.empty()) {
    for (const auto& task : std::exchange(idle_tasks_, {})) task();
  }
}

}  // namespace quixair
