// Record Now on an entry screen: the data file and what the next screen is handed.

#include "station/console/station_paths.h"
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
  RecordValues values = Gathered();
  const std::string id = ValueOf(values, layout_, RecordSlot::kId);
  Text1.SetText("Writing to Disk...");
  Repaint();
  const Status written = Write(values);
  if (!written.ok()) {
    TellNotWritten(written, id);
  } else if (mode_ == Mode::kImport) {
    GoToImport(id);
  } else if (mode_ == Mode::kEdit) {
    Load();
  } else {
    GoToCapture(values);
  }
}

std::string EntryScreen::Drive() const {
  return drive_.empty() ? std::string(1, platform_.capture.drive()) : drive_;
}

RecordValues EntryScreen::Gathered() const {
  RecordValues values = data.Typed();
  if (new_id_) ValueOf(values, layout_, RecordSlot::kId).insert(0, 1, layout_.letter);
  ValueOf(values, layout_, RecordSlot::kDrive) = Drive();
  if (layout_.HasPreset()) ValueOf(values, layout_, RecordSlot::kPreset) = Preset();
  return values;
}

Status EntryScreen::Write(RecordValues& values) {
  const std::string bytes = FormatFields(values);
  const std::string path = station_paths::DataFile(ValueOf(values, layout_, RecordSlot::kId));
  const Status written = platform_.files.Write(path, bytes, Durability::kFlushed);
  return written.ok() ? WriteHandOverRecord(platform_.files, bytes) : written;
}

void EntryScreen::GoToCapture(RecordValues& values) {
  const std::string id = ValueOf(values, layout_, RecordSlot::kId);
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
