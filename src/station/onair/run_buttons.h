#pragma once

// The operator's buttons during a run and what they look like in each of its states, the same in both
// playback modes. What a press does is the mode's.

#include "station/screen/controls.h"

namespace quixair {

class RunButtons {
 public:
  explicit RunButtons(Screen& owner);

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
  void ShowLiveAsked();
  void ShowLiveTakenBack();
  void ShowLiveNow();
  void ShowLiveOver();
};

}  // namespace quixair
