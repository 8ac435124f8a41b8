#pragma once

// The end of the user's session, which comes as a signal. It is no orderly end of a run: the program leaves
// without a word to its screens, so that the restart record stays and the run goes on when the machine is
// back.

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace quixair::desktop {

/// Watches for SIGTERM, SIGINT and SIGHUP. One for the whole program.
class TerminationSignals {
 public:
  /// `on_signal` runs from the event loop.
  explicit TerminationSignals(std::function<void()> on_signal);
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;
  ~TerminationSignals();

 private:
  std::array<int, 2> sockets_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quixair::desktop
