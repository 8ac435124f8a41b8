#pragma once

// The line between the program and the supervisor that watches it. The program's end of it goes with the program, which
// is how the supervisor learns of a death the moment it happens. A supervisor that is gone is nothing to the program: what
// it says then is lost.

#include <cstdint>

namespace quixair {

enum class Word : char {
  kDisplay = 'd',  // the display could be reached
  kIdle = 'i',     // a heartbeat, no run
  kOnAir = 'a',    // a heartbeat in a run
  kLeaving = 'l',  // it was asked to end, by the session or by a person
};

/// The program's end.
class Lifeline {
 public:
  /// `socket` -1: nobody listens.
  explicit Lifeline(int socket = -1) : socket_(socket) {}
  /// Never waits.
  void Say(Word word) const;

 private:
  int socket_;
};

}  // namespace quixair
