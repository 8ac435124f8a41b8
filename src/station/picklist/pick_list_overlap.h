#pragma once

// Timer3's tick, once a second while the operator has set an overlap: it starts the next event on channel 2
// that many seconds before the one on channel 1 ends. Beside spots and announcements nothing overlaps. The
// way back to channel 1 is PickListWatcher's.

namespace quixair {

class PickListEngine;
struct PickListContext;

class PickListOverlap {
 public:
  PickListOverlap(PickListContext& context, PickListEngine& engine) : context_(context), engine_(engine) {}
  void Tick();

 private:
  bool MayOverlap() const;

  PickListContext& context_;
  PickListEngine& engine_;
};

}  // namespace quixair
