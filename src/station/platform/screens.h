#pragma once

// How one screen opens another: by name, never by including it. What is opened is owned by the one who
// implements this; a screen that unloads itself is destroyed after the event that asked for it has come to
// its end.

#include <string>
#include <string_view>
#include <vector>

namespace quixair {

class Screen;

/// What a caller sets on a screen that serves several purposes, before it loads; empty members leave the
/// screen's own.
struct ScreenOpening {
  std::string title;
  std::vector<std::string> patterns;   // of the file lists
  std::vector<std::string> day_files;  // "MON.TPT" to "SUN.TPT"
  std::vector<std::string> captions;
};

class Screens {
 public:
  virtual ~Screens() = default;
  /// Makes, shows and loads the screen; one that is open already comes to the front as it is, unless it
  /// makes something of the opening.
  virtual void Open(std::string_view name, const ScreenOpening& opening = {}) = 0;
  /// Takes the screen away; harmless when it is on its way out.
  virtual void Unload(Screen& screen) = 0;
  /// The open screen of that name, or none.
  virtual Screen* Find(std::string_view name) = 0;
  /// The screen whose run is on the air, or none.
  virtual Screen* OnTheAir() = 0;
};

}  // namespace quixair
