#pragma once

// Timer3's tick, once a second while the operator has set an overlap: it starts the next item on channel 2 a
// few seconds before the one on channel 1 ends. The way back to channel 1 is ChannelWatcher's. Breaks and
// stop sets are played item by item, so the start is held off while one is running or comes next.

namespace quixair {

class SequencingEngine;
struct RandomContext;

class OverlapWatcher {
 public:
  OverlapWatcher(RandomContext& context, SequencingEngine& engine) : context_(context), engine_(engine) {}
  void Tick();

 private:
  bool PointReached(int overlap);

  RandomContext& context_;
  SequencingEngine& engine_;
  double overlap_point_ = 0;  // seconds into channel 1's item
};

/// Neither way: a live break, a pause, a stop set or a break is on or comes next. Spots lie over nothing.
bool OverlapHeldOff(const RandomContext& context);

}  // namespace quixair
