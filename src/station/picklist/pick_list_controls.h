#pragma once

// The operator's acts on a run of Pick-List playback.

namespace quixair {

class PickListEngine;
struct PickListContext;

class PickListControls {
 public:
  PickListControls(PickListContext& context, PickListEngine& engine) : context_(context), engine_(engine) {}

  /// StartRun.
  void Start();
  void Pause();
  void Continue();
  void BeginNext();
  void Requeue();
  void EndRun();
  /// Leaving before a run.
  void Quit();
  void ChooseFirstEvent();
  void TellAboutRemaining();

 private:
  void ShowTotals();
  void ShowLineup();
  void SkipChannel(int number);

  PickListContext& context_;
  PickListEngine& engine_;
};

}  // namespace quixair
