#pragma once

// An announcer at the microphone: asked for while an item plays, begun when that has ended, over with Continue.
// A request that has not taken effect yet outlives a pause.

namespace quixair {

class LiveBreak {
 public:
  bool LiveRequested() const { return requested_; }
  bool on() const { return on_; }

  void Toggle() { requested_ = !requested_; }
  void Begin() { on_ = true; }
  void End() { requested_ = on_ = false; }

 private:
  bool requested_ = false;
  bool on_ = false;
};

}  // namespace quixair
