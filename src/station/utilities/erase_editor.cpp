#include "station/utilities/erase_editor.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/utilities/erase_utility.h"

namespace quixair {
namespace {
constexpr const char* kEraseTitle = "Erase RECORDINGS ";
constexpr int kAskBeforeAll = box_style::kOkCancel + box_style::kCritical;
constexpr int kAskEach = box_style::kYesNo + box_style::kCritical;
}  // namespace

EraseEditor::EraseEditor(EraseUtility& screen)
    : EventListEditor(screen), screen_(screen), current_folder_(station_paths::kDataFolder) {
  screen.Command1.on_click = [this] { EraseList(); };
  screen.Command2.on_click = [this] { ClearList(); };
}

void EraseEditor::ClearList() {
  const Answer answer = screen_.platform().dialogs.MessageBox(
      "Do You Really Want to Clear all Entries You Have Made\nfrom the List?  (Files will not be erased).",
      box_style::kOkCancel + box_style::kExclamation, "Clear This File?");
  if (answer == Answer::kOk) ClearEntries();
}

void EraseEditor::Quit() {
  if (entries_.EntryCount() > 0) {
    const Answer answer = screen_.platform().dialogs.MessageBox(
        "Do you want to Quit Without Erasing?\nChoose YES to Quit Now.",
        box_style::kYesNoCancel + box_style::kExclamation, "List Not Erased");
    if (answer == Answer::kNo) EraseList();
    if (answer != Answer::kYes) return;
    ClearEntries();
  }
  screen_.platform().screens.Unload(screen_);
}

void EraseEditor::EraseList() {
  const Answer answer = screen_.platform().dialogs.MessageBox(
      "Are you Sure you Want to\nERASE Selected Material?", kAskBeforeAll, kEraseTitle);
  if (answer != Answer::kOk) return;
  for (int number = 1; number <= entries_.EntryCount(); ++number) {
    const Recording recording = RecordingAt(number);
    screen_.Text3.SetText("Ready to Erase #" + std::to_string(number) + ")  " + current_folder_ + '\\' +
                          recording.id + ".DAT");
    if (!Refused(recording.id)) Erase(recording);
    screen_.Repaint();  // the air goes on between two recordings
  }
  BeginAnew();
}

EraseEditor::Recording EraseEditor::RecordingAt(int number) const {
  const std::string& entry = entries_.entry(number);
  return {.id = EntryId(entry), .drive = entry.substr(entry.size() - 1)};
}

bool EraseEditor::Refused(const std::string& id) {
  return screen_.Check1.ticked() &&
         screen_.platform().dialogs.MessageBox("Erase " + id + " ?", kAskEach, kEraseTitle) != Answer::kYes;
}

void EraseEditor::Erase(const Recording& recording) {
  EraseDataFile(recording);
  EraseAudio(recording);
}

void EraseEditor::EraseDataFile(const Recording& recording) {
  screen_.Text2.SetText("Currently Erasing " + recording.id + ".DAT");
  current_folder_ = station_paths::kDataFolder;
  Handle(screen_.platform().files.Delete(station_paths::DataFile(recording.id)), recording);
}

void EraseEditor::EraseAudio(const Recording& recording) {
  bool found = false;
  for (const char* extension : {".WAV", ".MP3"}) {
    const std::string path = station_paths::AudioFile(recording.drive, recording.id, extension);
    const Result<bool> there = IsThere(path);
    Handle(there.status(), recording);
    if (!there.ok()) break;  // the drive answers for neither
    if (!there.value()) continue;
    found = true;
    screen_.Text2.SetText("Currently Erasing " + path);
    current_folder_ = station_paths::AudioFolder(recording.drive);
    Handle(screen_.platform().files.Delete(path), recording);
  }
  if (!found) TellNoAudio(recording, ".WAV or .MP3 File Doesn't Exist in Specified Directory ");
}

/// A missing folder holds no file; a missing drive is a fault.
Result<bool> EraseEditor::IsThere(const std::string& path) {
  Files& files = screen_.platform().files;
  const Status place = files.HostPathToMake(path).status();
  if (!place.ok() && place.error() != RunTimeError::kPathNotFound) return place.error();
  return files.Exists(path);
}

void EraseEditor::TellNoAudio(const Recording& recording, const char* what) {
  Warn("No Audio File Not Found in " + station_paths::AudioFolder(recording.drive),
       "Couldn't Delete " + recording.id + what +
           "\nPlease Search For This File Using Windows(tm) Find and Delete Manually");
}

void EraseEditor::Handle(const Status& status, const Recording& recording) {
  if (status.ok()) return;
  if (status.error() == RunTimeError::kFileNotFound) {
    TellNoAudio(recording, ". File Doesn't Exist in the Specified Directory ");
  } else {
    Warn("Unexpected Error: " + std::to_string(status.number()),
         "An Abnormal Error Has Occured While Deleting " + recording.id +
             ".\nPlease Check to Make Sure the File Was Deleted.");
  }
}

void EraseEditor::BeginAnew() {
  entries_ = TemplateEntries();
  CutArmed = 0;
  current_folder_ = station_paths::kDataFolder;
  for (ListBox* list : {&screen_.List1, &screen_.List2, &screen_.List3, &screen_.List4}) list->Clear();
  screen_.List1.Enable();
  screen_.Text1.SetText("");
  screen_.Text2.SetText("Done..");
  screen_.Text3.SetBackColor(std::nullopt);
  screen_.Reopen();
}

}  // namespace quixair
