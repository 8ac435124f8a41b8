#pragma once

// Timer2's tick, every 210 ms: nothing tells the screen that an item has ended, it polls the modes of its
// channels. Its rules run in a fixed order, each reading the modes anew.

namespace quixair {

class Deck;
class DayScheduler;
class SequencingEngine;
class RunControls;
struct RandomContext;

class ChannelWatcher {
 public:
  ChannelWatcher(RandomContext& context, SequencingEngine& engine, RunControls& controls,
                 DayScheduler& scheduler);
  void Tick();

 private:
  bool WaitWhilePaused();
  void RetireFirstAfterOverlap();
  void HandBack();
  void StartWhenBothClosed();
  void EndSecondAfterHandBack();
  void EndFirst();
  void EndSecond();
  void EndThird();
  void DropEmptyChannels();

  RandomContext& context_;
  Deck& deck_;
  SequencingEngine& engine_;
  RunControls& controls_;
  DayScheduler& scheduler_;
};

}  // namespace quixair
