#pragma once

// What a widget implements that shows more of a screen than its controls hold: the clock, the state of the
// air, the progress of the item, the levels. Its object name starts with "view" and no control answers to it;
// the binder hands it the screen. It reads the station on its own timer and never changes it.

namespace quixair {
class Screen;
}

namespace quixair::desktop {

class ScreenView {
 public:
  virtual void Follow(Screen& screen) = 0;
  /// The screen is about to go: it must not be read again.
  virtual void Leave() = 0;

 protected:
  ~ScreenView() = default;
};

}  // namespace quixair::desktop
