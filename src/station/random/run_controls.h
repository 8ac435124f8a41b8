#pragma once

// The operator's acts on a run of Random playback: each a small operation on the flags of the run and the
// screen.

#include <functional>

namespace quixair {

class SequencingEngine;
struct RandomContext;

class RunControls {
 public:
  RunControls(RandomContext& context, SequencingEngine& engine) : context_(context), engine_(engine) {}

  void Start();
  /// The start-time timer's tick: Start in the minute that was set.
  void StartWhenDue();
  void Pause();
  void Continue();
  void BeginNext();
  void Requeue();
  /// Asks for a live break after the current item, or takes the request back.
  void GoLive();
  /// The run's end; what unloads the screen is the caller.
  void EndRun();
  /// Leaving before a run.
  void Quit();
  void ChooseFirstEvent();
  /// Whether a Play on a transport bar may lead to Continue; channel 3's does not look at the pause.
  bool BarMayContinue(bool looks_at_pause) const;

 private:
  void ShowRunControls();
  void ResetRun();
  void ResumeClock();
  void EndLiveBreak();

  RandomContext& context_;
  SequencingEngine& engine_;
};

}  // namespace quixair
