#pragma once

// The list in which an operator sets how many seconds the next item starts before the end of the one on the
// air, 0 for not at all, and the button that keeps the choice for the next load. Both modes share the stored
// value; what counts in a run is the list's selection, stored or not.

#include <string>

#include "station/screen/controls.h"

namespace quixair {

class OverlapChoice {
 public:
  OverlapChoice(Screen& owner, std::string label_name, std::string save_name);

  Label caption;
  ListBox List2;  // "0" to "9"
  Button save;

  /// Fills the list and selects the stored value.
  void ReadFile();
  /// A list of one event cannot overlap; what was chosen comes back with a longer one.
  void Allow(bool allowed);
  /// Selects "0" when nothing is selected, and gives the seconds.
  int Settled();
  /// 0 when nothing is selected.
  int seconds() const;

 private:
  bool allowed_ = true;
  int chosen_ = 0;  // while it is not allowed
};

}  // namespace quixair
