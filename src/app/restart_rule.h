#pragma once

// How the supervisor starts the program again after a death in a run: at once, as long as that brings the air back; with
// little beside the run when it did not help; and after a wait when it dies as soon as it stands. Pure: the supervisor
// tells it of each death.

#include <string>
#include <vector>

#include "station/platform/clock.h"

namespace quixair {

struct Death {
  SteadyTime at;
  SteadyTime::duration lived{};
  bool from_outside = false;  // killed by somebody else while it played
  std::string event;          // that the record names; empty for a mode whose record names none
};

struct RestartPlan {
  int in_a_row = 0;      // deaths, this one among them; 0 for one that says nothing of the program
  bool move_on = false;  // this event ended the program twice: it is not tried a third time
  bool bare = false;     // nothing but the console and the run
  bool wait = false;     // before the next try
};

class RestartRule {
 public:
  RestartPlan After(const Death& death);

 private:
  std::vector<SteadyTime> within_a_minute_;
  int in_a_row_ = 0;
  bool waits_ = false;
  std::string last_event_;
};

}  // namespace quixair
