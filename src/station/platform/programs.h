#pragma once

// The outside programs that the station starts and forgets: the mixer, the text editor, the sibling programs.
// They are named by their command lines on the old PC; the host's table of programs says what is really run.

#include <string_view>

namespace quixair {

enum class WindowState { kNormal, kMinimised, kMaximised };

class Programs {
 public:
  virtual ~Programs() = default;
  /// Starts and does not wait. A program that cannot be started is told to the operator in a plain box.
  virtual void Run(std::string_view command_line, WindowState window = WindowState::kNormal) = 0;
  /// Whether this host has a program to run for that command line; tells nobody.
  virtual bool Knows(std::string_view command_line) = 0;
  /// Key strokes for the program in the foreground; a name between braces is a key, as "{Enter}".
  virtual void SendKeys(std::string_view keys) = 0;
};

}  // namespace quixair
