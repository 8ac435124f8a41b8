#include "station/console/folder_choice.h"

#include "station/platform/dialogs.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {

constexpr char kFirstDrive = 'C';

std::string RootOf(char letter) {
  return {letter, ':', '\\'};
}

}  // namespace

void TellDriveMissing(Dialogs& dialogs, char letter) {
  dialogs.MessageBox("This Drive is unavailable, try again...", box_style::kOk,
                     std::string("Drive ") + letter + " not available");
}

FolderChoice::FolderChoice(DriveListBox& drives, DirListBox& folders, FileListBox& files, Missing missing)
    : drives_(drives), folders_(folders), files_(files), missing_(missing) {
  drives_.on_click = [this] { OpenDrive(); };
  folders_.on_change = [this] {
    files_.SetPath(folders_.path());
    if (on_change) on_change();
  };
}

void FolderChoice::ShowFirst() {
  drives_.Refresh();
  SkipAndGoOn(Show(RootOf(kFirstDrive)));
}

void FolderChoice::GoTo(const std::string& path) {
  if (path.empty()) return;
  Status shown = Show(path);
  if (shown.error() == RunTimeError::kPathNotFound) shown = Show(RootOf(path.front()));
  if (shown.error() != RunTimeError::kDiskNotReady) return;
  TellDriveMissing(drives_.screen().platform().dialogs, path.front());
}

Status FolderChoice::Show(const std::string& path) {
  const Status shown = folders_.SetPath(path);
  drives_.SelectDrive(folders_.drive());
  if (shown.ok()) files_.SetPath(folders_.path());
  return shown;
}

void FolderChoice::OpenDrive() {
  const char letter = drives_.drive();
  if (!Show(RootOf(letter)).ok()) {
    if (missing_ == Missing::kBackToDriveC) SkipAndGoOn(Show(RootOf(kFirstDrive)));
    TellDriveMissing(drives_.screen().platform().dialogs, letter);
    if (missing_ == Missing::kBackToDriveBefore) return;
  }
  if (on_change) on_change();
}

}  // namespace quixair
