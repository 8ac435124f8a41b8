#include "station/recording/recorder_panel.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"
#include "station/platform/text.h"
#include "station/recording/audition.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kPositionInterval{100};

std::string FileNameOf(const std::string& path) {
  return path.substr(path.rfind('\\') + 1);
}

}  // namespace

RecorderPanel::RecorderPanel(Screen& screen)
    : Text6(screen, "Text6", TextBox::Use::kShow),
      SecondsRecorded(screen, "SecondsRecorded"),
      Label5(screen, "Label5"),
      PlayPos(screen, "PlayPos"),
      Trouble(screen, "Trouble"),
      RecordBtn(screen, "RecordBtn", "&Start"),
      StopBtn(screen, "StopBtn", "S&top"),
      Command1(screen, "Command1", "&Audition"),
      NowExit(screen, "NowExit", "&Exit"),
      CancelButton(screen, "CancelButton", "&Cancel/Erase"),
      changesettingsButton(screen, "changesettingsButton", "S&ettings"),
      SaveSettingsButton(screen, "SaveSettingsButton", "S&ave Settings"),
      OLE1(screen, "OLE1", "&Volume"),
      MMControl1(screen, "MMControl1", kAuditionChannel),
      MMWaveRecorderX(screen, "MMWaveRecorderX"),
      Timer1(screen, "Timer1"),
      screen_(screen) {
  Connect();
}

void RecorderPanel::Connect() {
  RecordBtn.on_click = [this] { Start(); };
  StopBtn.on_click = [this] { Finish(Ending::kByOperator); };
  Command1.on_click = [this] { Audition(); };
  changesettingsButton.on_click = [this] {
    MMWaveRecorderX.LoadFormat();
    MMWaveRecorderX.ChooseFormat();
    ShowFormat();
    MMWaveRecorderX.Listen();
  };
  SaveSettingsButton.on_click = [this] { SaveSettings(); };
  OLE1.on_click = [this] { screen_.platform().programs.Run(std::string(station_paths::kMixer)); };
  MMWaveRecorderX.on_started = [this] {
    RecordBtn.Disable();
    StopBtn.Enable();
    StopBtn.SetFocus();
  };
  MMWaveRecorderX.on_stopped = [this] {
    RecordBtn.Enable();
    StopBtn.Disable();
    NowExit.SetFocus();
    if (!ending_) Finish(Ending::kByItself);
  };
  MMWaveRecorderX.on_progress = [this] { ShowProgress(); };
  Timer1.on_tick = [this] { PlayPos.SetCaption(ShortestSeconds(MMControl1.Position()) + " Seconds"); };
  PlayByHand(MMControl1);
}

void RecorderPanel::Prepare() {
  Text6.SetText("Click 'Start' to Begin Recording.  Select Audio Format by Clicking 'Settings'.");
  StopBtn.Disable();
  Timer1.SetEnabled(false);
  PlayPos.SetCaption({});
  MMControl1.Command(ChannelCommand::kClose);
  MMControl1.Disable();
  MMWaveRecorderX.SetFileName({});
  MMWaveRecorderX.LoadFormat();
  ShowFormat();
  MMWaveRecorderX.Listen();
}

void RecorderPanel::Start() {
  Timer1.SetEnabled(false);
  PlayPos.SetCaption({});
  MMControl1.Command(ChannelCommand::kClose);
  if (on_start) on_start();
  EnableChoices(false);
  screen_.platform().capture.set_drive(UpperCased(path.front()));
  MMWaveRecorderX.SetFileName(path);
  MMWaveRecorderX.LoadFormat();  // a format that was chosen and not saved is not taken: wanted
  ShowFormat();
  MMWaveRecorderX.SetMaxRecordTime(limit);
  const Status started = MMWaveRecorderX.Record();
  if (started.ok()) {
    Text6.SetText("Currently Recording " + FileNameOf(path));
    if (on_recording) on_recording();
    return;
  }
  EnableChoices(true);
  Text6.SetText("Nothing is being recorded.");
  TellFileFault(screen_.platform().dialogs, started, "Nothing was recorded.");
}

void RecorderPanel::Finish(Ending ending) {
  const std::string trouble = MMWaveRecorderX.Trouble();
  if (ending != Ending::kOnceMore) EndCapture();
  const std::string seconds = FixedDecimals(MMWaveRecorderX.RecordedLength() / 1000.0, 1);
  const bool written = !on_saved || on_saved(seconds, ending);
  EnableChoices(true);
  if (written) {
    Text6.SetText("File Saved: Click 'Exit' for New File, 'Start' to Re-Record, 'Audition' to Listen.");
  }
  if (ending == Ending::kByItself && !trouble.empty()) {
    screen_.platform().dialogs.MessageBox(trouble, box_style::kExclamation, "Recording Has Ended");
  }
}

void RecorderPanel::EndCapture() {
  ending_ = true;
  MMWaveRecorderX.Stop();
  ending_ = false;
  MMControl1.Enable();
  MMControl1.Command(ChannelCommand::kClose);
  Text6.SetText("Writing Data file to Disk");
}

bool RecorderPanel::EraseConfirmed(const std::string& name) {
  const Answer answer = screen_.platform().dialogs.MessageBox(
      "You are about to erase " + name +
          " and\nall data associated with this file.  Do you wish to continue?",
      box_style::kOkCancel + box_style::kCritical, "Erase File?");
  if (answer != Answer::kOk) return false;
  Text6.SetText("Erasing File");
  MMControl1.Command(ChannelCommand::kClose);
  return true;
}

void RecorderPanel::EnableChoices(bool enabled) {
  for (Button* choice : {&Command1, &NowExit, &changesettingsButton, &CancelButton}) choice->Enable(enabled);
}

void RecorderPanel::ShowFormat() {
  Label5.SetCaption(InWords(MMWaveRecorderX.format()));
}

void RecorderPanel::ShowProgress() {
  SecondsRecorded.SetCaption(ShortestSeconds(MMWaveRecorderX.Position()));
  Trouble.SetCaption(MMWaveRecorderX.Trouble());
  Trouble.Show(!Trouble.caption().empty());
}

void RecorderPanel::Audition() {
  MMControl1.Enable();
  MMControl1.SetFileName(MMWaveRecorderX.file_name().empty() ? path : MMWaveRecorderX.file_name());
  MMControl1.Command(ChannelCommand::kOpen);
  Timer1.SetInterval(kPositionInterval);
  Timer1.SetEnabled(true);
}

void RecorderPanel::SaveSettings() {
  const Status saved = MMWaveRecorderX.SaveFormat();
  if (!saved.ok()) TellFileFault(screen_.platform().dialogs, saved, "The format was not saved.");
  MMWaveRecorderX.LoadFormat();
  ShowFormat();
}

bool IsCapturing(const Platform& platform, std::string_view screen) {
  const Screen* open = platform.screens.Find(screen);
  if (open == nullptr || !open->IsBusy()) return false;
  platform.dialogs.MessageBox("Another recording is being made just now.  Stop it first, then try again.",
                              box_style::kExclamation, "A Recording Is Being Made");
  return true;
}

}  // namespace quixair
