#include "station/onair/run_buttons.h"

#include <string>

#include "station/screen/screen.h"

namespace quixair {

RunButtons::RunButtons(Screen& owner, TextBox& status)
    : PauseCommand(owner, "PauseCommand", "&Pause"),
      ContinueCommand(owner, "ContinueCommand", "&Continue"),
      BeginNextCommand(owner, "BeginNextCommand", "&Begin Next"),
      RequeueCommand(owner, "RequeueCommand", "   Re-&Queue           Current"),
      EndRunCommand(owner, "EndRunCommand", "&End Run"),
      GoLive(owner, "GoLive", "Go &Live Next"),
      status_(status) {
  HideBeforeRun();
  GoLive.Hide();
  status_.SetBackColor(kPaleGreen);
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
  status_.SetBackColor(kYellow);
  status_.SetText(std::string(36, ' ') + "Going Live After Current Selection Ends");
  GoLive.SetCaption("Cancel &Live");
}

void RunButtons::ShowLiveTakenBack() {
  GoLive.SetCaption("Go &Live Next");
  status_.SetBackColor(kPaleGreen);
  status_.SetText(std::string(61, ' ') + "Live Cancelled!");
}

void RunButtons::ShowLiveNow() {
  status_.SetText("AUDIO PAUSED FOR LIVE BREAK ! - Press <CONTINUE> to Resume");
  GoLive.SetCaption("LIVE NOW!");
  GoLive.Disable();
  PauseCommand.Disable();
  RequeueCommand.Disable();
  ContinueCommand.SetFocus();
}

void RunButtons::ShowLiveOver() {
  for (Button* button : {&PauseCommand, &RequeueCommand, &BeginNextCommand, &GoLive}) button->Enable();
  status_.SetBackColor(kPaleGreen);
  GoLive.SetCaption("Go &Live Next");
}

}  // namespace quixair
