#pragma once

// The operator's acts on a run of Random playback: each a small operation on the flags of the run and the
// screen.

namespace quixair {

class SequencingEngine;
struct RandomContext;

class RunControls {
 public:
  RunControls(RandomContext& context, SequencingEngine& engine) : context_(context), engine_(engine) {}

  void Start();
  void Pause();
  void Continue();
  void BeginNext();
  void Requeue();
  /// The run's end; what unloads the screen is the caller.
  void EndRun();
  /// Leaving before a run.
  void Quit();
  void ChooseFirstEvent();

 private:
  RandomContext& context_;
  SequencingEngine& engine_;
};

}  // namespace quixair
