#pragma once

// The operator's buttons during a run and what they look like in each of its states, the same in both
// playback modes. What a press does is the mode's.

#include "station/screen/controls.h"

namespace quixair {

class RunButtons {
 public:
  /// `status` is the screen's status line.
  RunButtons(Screen& owner, TextBox& status);

  Button PauseCommand;
  Button ContinueCommand;
  Button BeginNextCommand;
  Button RequeueCommand;
  Button EndRunCommand;
  Button GoLive;

  /// Before a run only GoLive's place is the mode's own; the others are hidden.
  void HideBeforeRun();
  void ShowForRun();

  void ShowPaused();
  void ShowResumed();
  /// A live break is asked for: it begins when the item on the air has ended.
  void ShowLiveAsked();
  void ShowLiveTakenBack();
  void ShowLiveNow();
  void ShowLiveOver();

 private:
  TextBox& status_;
};

}  // namespace quixair
