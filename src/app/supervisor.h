#pragma once

// The parent of the program, without toolkit or sound: starts it, watches it by its lifeline, and starts it again within
// a tenth of a second when a run was on and it died by a signal, ended by a fault, or let its event loop stand still. The
// restart record does the rest. Each start is a fork of this process, which has everything loaded and nothing begun, so
// that no time is lost. An end in order, and one that the session asks for, end both.
//
//     Supervisor supervisor(files, clock);
//     const std::optional<Life> life = supervisor.Run();
//     if (!life) return supervisor.exit_code();
//     return RunTheProgram(*life);

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>

#include "app/lifeline.h"
#include "app/restart_rule.h"
#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

/// What one start of the program is to know.
struct Life {
  Lifeline lifeline;
  /// More than 0: not the program, but its notice for as long, which then ends with 0, or with kNoMore when the operator
  /// does not want another try.
  std::chrono::milliseconds pause{0};
  static constexpr int kNoMore = 3;
  bool bare = false;     // the console and the run, nothing else
  std::string notice;    // why, for the screen; empty when all is as always
  std::string log_line;  // for the error log, once the air is back; empty at a first start
};

class Supervisor {
 public:
  struct Patience {
    std::chrono::milliseconds heartbeat{20'000};      // without one in a run
    std::chrono::milliseconds between_tries{30'000};  // when it dies as soon as it stands
  };

  Supervisor(Files& files, const Clock& clock) : Supervisor(files, clock, Patience()) {}
  Supervisor(Files& files, const Clock& clock, Patience patience);
  Supervisor(const Supervisor&) = delete;
  Supervisor& operator=(const Supervisor&) = delete;

  /// Returns in the program's process, once for each life; in the supervisor's own when all is over, with none. Where no
  /// process can be made, the program runs without a supervisor.
  std::optional<Life> Run();
  /// Of the last life; 128 and the signal's number when it died by one.
  int exit_code() const { return exit_code_; }

 private:
  /// How a life ended.
  struct End {
    int status = 0;        // as wait gives it
    bool hung = false;     // and was killed for it
    bool display = false;  // it reached the display
    bool on_air = false;   // by its last heartbeat
    bool asked = false;    // by the session or a person
    SteadyTime::duration lived{};
  };

  /// True in the new process.
  bool Fork(Life& life);
  End Watch();
  bool ComesBack(const End& end) const;
  Life NextLife(const End& end);
  /// Sits out what is left of a pause. False when nobody wants another try.
  bool PauseIsOver(const Life& pause, const End& end) const;
  static std::string CauseOf(const End& end);

  Files& files_;
  const Clock& clock_;
  const Patience patience_;
  RestartRule rule_;
  int lifeline_ = -1;  // this side of it
  pid_t life_ = 0;
  int exit_code_ = 0;
};

}  // namespace quixair
