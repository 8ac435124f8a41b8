#pragma once

// Whether the program starts by itself when the user's desktop session does. A power cut ends the session with
// the program in it, so the restart switch is worth nothing without this.

#include "station/platform/run_time_error.h"

namespace quixair {

class SessionStart {
 public:
  virtual ~SessionStart() = default;
  /// Holds from the next session on; setting what is set already is no fault.
  virtual Status SetStartsWithSession(bool starts) = 0;
};

}  // namespace quixair
