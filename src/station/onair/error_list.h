#pragma once

// The list of a playback screen that tells the operator what could not be played. A run lasts for weeks, so
// its oldest rows go; the error log file keeps them all.

#include <string>
#include <utility>

#include "station/screen/controls.h"

namespace quixair {

class ErrorList : public ListBox {
 public:
  explicit ErrorList(Screen& owner);

  static constexpr int kMostRows = 500;
  void AddFault(std::string row);
};

}  // namespace quixair
