#pragma once

// Timer2's tick, every 190 ms: nothing tells the screen that an item has ended, it polls the modes of its
// channels. Its rules run in a fixed order, each reading the modes anew.

namespace quixair {

class Deck;
class PickListControls;
class PickListEngine;
struct PickListContext;

class PickListWatcher {
 public:
  PickListWatcher(PickListContext& context, PickListEngine& engine, PickListControls& controls);
  void Tick();

 private:
  void WatchChannels();
  void ShowTotals();
  void RetireFirstAfterOverlap();
  void HandBack();
  void EndSecondWhileFirstIsClosed();
  void EndSecondAfterHandBack();
  void EndSecond();
  void EndFirst();
  void EndSpotOnFirst();
  void Sweep();
  void GoOnAfterPause();

  void GoOn();

  PickListContext& context_;
  Deck& deck_;
  PickListEngine& engine_;
  PickListControls& controls_;
};

}  // namespace quixair
