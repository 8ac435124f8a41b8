#pragma once

// The machine's print system, which may take its time or hang: it is asked and given its work in the
// background, one thing at a time, while the timers and the air go on. QtPrinter owns it.

#include <QStringList>
#include <chrono>
#include <functional>
#include <future>
#include <optional>

namespace quixair::desktop {

struct PrintersFound {
  QStringList names;
  QString default_name = {};  // empty when there is none
};

class PrintSystem {
 public:
  using Search = std::function<PrintersFound()>;
  using Turn = std::function<void()>;

  /// `search` runs on threads of its own; the default asks the print system.
  explicit PrintSystem(Search search = SearchPrinters) : search_(std::move(search)) {}

  /// As last heard.
  const PrintersFound& found() const { return found_; }
  /// Has what is found brought up to date; returns at once.
  void LookAgain();
  /// What there is now; none when there is no answer within `patience`. `turn` is called while it waits.
  std::optional<PrintersFound> Find(std::chrono::milliseconds patience, const Turn& turn);
  /// Has the job done; false when it failed or is not through within `patience`. It may outlive this.
  bool Do(std::function<bool()> job, std::chrono::milliseconds patience, const Turn& turn);

  static PrintersFound SearchPrinters();

 private:
  void Hear();
  /// A job that hangs: nothing else is asked meanwhile.
  bool IsHeldUp() const;

  Search search_;
  std::future<PrintersFound> searched_;
  std::future<bool> done_;
  PrintersFound found_;
};

}  // namespace quixair::desktop
