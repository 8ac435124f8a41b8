#include "station/onair/run_buttons.h"

#include "station/screen/screen.h"

namespace quixair {

RunButtons::RunButtons(Screen& owner)
    : PauseCommand(owner, "PauseCommand", "&Pause"),
      ContinueCommand(owner, "ContinueCommand", "&Continue"),
      BeginNextCommand(owner, "BeginNextCommand", "&Begin Next"),
      RequeueCommand(owner, "RequeueCommand", "   Re-&Queue           Current"),
      EndRunCommand(owner, "EndRunCommand", "&End Run"),
      GoLive(owner, "GoLive", "Go &Live Next") {
  HideBeforeRun();
  GoLive.Hide();
}

void RunButtons::HideBeforeRun() {
  for (Button* button :
       {&PauseCommand, &ContinueCommand, &BeginNextCommand, &EndRunCommand, &RequeueCommand}) {
    button->Hide();
  }
}

void RunButtons::ShowForRun() {
  for (Button* button :
       {&PauseCommand, &ContinueCommand, &BeginNextCommand, &EndRunCommand, &RequeueCommand, &GoLive}) {
    button->Show();
  }
}

void RunButtons::ShowPaused() {
  for (Button* button : {&RequeueCommand, &PauseCommand, &GoLive}) button->Disable();
  ContinueCommand.SetFocus();
}

void RunButtons::ShowResumed() {
  for (Button* button : {&PauseCommand, &RequeueCommand, &BeginNextCommand, &GoLive}) button->Enable();
}

void RunButtons::ShowLiveAsked() {
  GoLive.SetCaption("Cancel &Live");
}

void RunButtons::ShowLiveTakenBack() {
  GoLive.SetCaption("Go &Live Next");
}

void RunButtons::ShowLiveNow() {
  GoLive.SetCaption("LIVE NOW!");
  GoLive.Disable();
  PauseCommand.Disable();
  RequeueCommand.Disable();
  ContinueCommand.SetFocus();
}

void RunButtons::ShowLiveOver() {
  for (Button* button : {&PauseCommand, &RequeueCommand, &BeginNextCommand, &GoLive}) button->Enable();
  GoLive.SetCaption("Go &Live Next");
}

}  // namespace quixair
