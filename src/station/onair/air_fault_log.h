#pragma once

// What goes wrong on the air, on the screen's list and in the error log, without flooding either. While
// nothing at all can be opened (a drive is gone) the engine tries again several times a second, and every try
// would write lines for weeks. So of the lines between two items that sounded, each different one is written; of
// those that repeat another, no more than fill up kLinesPerOutage, and after them one a minute.

#include <functional>
#include <set>
#include <string>

#include "station/console/logs.h"
#include "station/onair/deck.h"
#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

class AirFaultLog final : public DeckObserver {
 public:
  static constexpr int kLinesPerOutage = 50;
  static constexpr double kSecondsBetweenLines = 60;

  /// `add_row` shows a row to the operator.
  AirFaultLog(Files& files, const Clock& clock, ModeLetter mode, std::function<void(std::string)> add_row)
      : files_(files), clock_(clock), mode_(mode), add_row_(std::move(add_row)) {}

  /// The next fault is news again.
  void ItemBegan(int /*channel*/, const AirItem& /*item*/) override {
    lines_ = 0;
    told_.clear();
  }
  /// `row` on the list and, behind the mode, date and time, `logged` in the error log. A log that cannot be
  /// written does not hold up the air.
  void Add(const std::string& row, const std::string& logged);

 private:
  bool IsDue(const std::string& row);

  Files& files_;
  const Clock& clock_;
  ModeLetter mode_;
  std::function<void(std::string)> add_row_;
  int lines_ = 0;
  std::set<std::string> told_;
  SteadyTime last_line_{};
};

}  // namespace quixair
