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
  /// The start-time timer's tick: Start in the minute that was set.
  void StartWhenDue();
  void Pause();
  void Continue();
  void BeginNext();
  void Requeue();
  /// Asks for a live break after the current item, or takes the request back.
  void GoLive();
  void EndRun();
  /// Leaving before a run.
  void Quit();
  void ChooseFirstEvent();
  void TellAboutRemaining();
  /// Whether a Play on a transport bar may lead to Continue; channel 3's does not look at the pause.
  bool BarMayContinue(bool looks_at_pause) const;

 private:
  void ShowRunControls();
  void ShowLineup();
  void ResumeClock();
  void EndLiveBreak();
  void SkipChannel(int number);

  PickListContext& context_;
  PickListEngine& engine_;
};

}  // namespace quixair
