#pragma once

// Timer2's tick, every 210 ms: nothing tells the screen that an item has ended, it polls the modes of its
// channels. Its rules run in a fixed order, each reading the modes anew.

#include <functional>

namespace quixair {

class DayScheduler;
class SequencingEngine;
class RunControls;
class MediaControl;
struct RandomContext;

class ChannelWatcher {
 public:
  ChannelWatcher(RandomContext& context, SequencingEngine& engine, RunControls& controls,
                 DayScheduler& scheduler)
      : context_(context), engine_(engine), controls_(controls), scheduler_(scheduler) {}
  void Tick();

 private:
  bool WaitWhilePaused();
  void ShowElapsed();
  void RetireFirstAfterOverlap();
  void HandBack();
  void StartWhenBothClosed();
  void EndSecondAfterHandBack();
  void EndFirst();
  void EndSecond();
  void EndThird();
  void DropEmptyChannels();

  MediaControl& channel(int number);

  RandomContext& context_;
  SequencingEngine& engine_;
  RunControls& controls_;
  DayScheduler& scheduler_;
};

}  // namespace quixair
