// Record Now on an entry screen: the data file and what the next screen is handed.

#include "station/library/hand_over_files.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/recorder.h"
#include "station/recording/entry_screen.h"

namespace quixair {
namespace {

constexpr const char* kAnswered = "1";  // the number of the box's button: wanted, the engineer knows it so

}  // namespace

void EntryScreen::RecordNow() {
  if (mode_ == Mode::kAudition) {
    Load();
    return;
  }
  if (data.id().enabled() && data.id().text().empty()) return data.id().SetFocus();  // told when it was left
  const bool id_not_left = data.id().enabled() && looked_up_ != data.id().text();
  if (id_not_left) {  // pressed by its key, the id still in focus
    IdLeft();
    if (!new_id_) return;
  }
  if (new_id_ && !DriveHasFolder(Drive().front())) {
    Drive1.SetFocus();
    return;
  }
  EnableFields(false);
  const Recording recording = Gathered();
  Text1.SetText("Writing to Disk...");
  Repaint();
  const Status written = Write(recording);
  if (!written.ok()) {
    TellNotWritten(written, recording.id());
  } else if (mode_ == Mode::kImport) {
    GoToImport(recording.id());
  } else if (mode_ == Mode::kEdit) {
    Load();
  } else {
    GoToCapture(recording.id());
  }
}

std::string EntryScreen::Drive() const {
  return drive_.empty() ? std::string(1, platform_.capture.drive()) : drive_;
}

Recording EntryScreen::Gathered() const {
  const std::string id = (new_id_ ? letter_ : std::string()) + data.id().text();
  Recording recording = existing_ && !new_id_ ? *existing_ : Recording(id, kind_.kind);
  data.PutInto(recording);
  recording.Set(Field::kRecordingId, id);
  recording.Set(Field::kDrive, Drive());
  recording.Set(Field::kPresetLength, Preset());
  return recording;
}

Status EntryScreen::Write(const Recording& recording) {
  const Status written = recording.Write(platform_.files);
  return written.ok() ? WriteHandOver(platform_.files, recording) : written;
}

void EntryScreen::GoToCapture(const std::string& id) {
  if (const Status written = WriteLastRecording(platform_.files, id); !written.ok()) {
    TellNotWritten(written, id);
    return;
  }
  DeleteOldAudio(Drive(), id);
  Text1.SetText("Calling Quixair Recorder");
  LeaveModes();
  platform_.screens.Open(kind_.capture_screen);
  Unload();
}

void EntryScreen::GoToImport(const std::string& id) {
  const Status written =
      WriteImportRequest(platform_.files, {.RecordingId = id, .Drive = Drive(), .kind = kind_.kind});
  if (!written.ok()) {
    TellNotWritten(written, id);
    return;
  }
  LeaveModes();
  platform_.screens.Open("ImportWin");
  Unload();
}

void EntryScreen::EnableFields(bool enabled) {
  data.id().Enable(enabled && new_id_);
  data.EnableData(enabled);
  EnableExtras(enabled);
  Drive1.Enable(enabled);
}

void EntryScreen::TellNotRead(const Status& fault, const std::string& missing, AbnormalFault abnormal) {
  TellRecordFault(platform_.dialogs, fault, missing, kind_.software, abnormal);
  LeaveModes();
  EnableFields(false);
  Command9.Disable();
  Command8.Enable();
  Command8.SetFocus();
  Text1.SetText(kAnswered);
}

void EntryScreen::TellNotWritten(const Status& fault, const std::string& id) {
  TellRecordFault(platform_.dialogs, fault, id, kind_.software, AbnormalFault::kEndsProgram);
  EnableFields(true);
  Text1.SetText(kAnswered);
}

}  // namespace quixair
