#pragma once

// How a person goes through the drives and folders of the station to a file: a drive list, the folders of the
// chosen drive, and the files of the chosen folder. Owned by the screen that the lists lie on.

#include <functional>
#include <string>

#include "station/screen/controls.h"

namespace quixair {

class Dialogs;

/// The box of a drive whose directory is not there.
void TellDriveMissing(Dialogs& dialogs, char letter);

class FolderChoice {
 public:
  /// Where the lists go when the drive that was chosen is not there.
  enum class Missing { kBackToDriveBefore, kBackToDriveC };
  FolderChoice(DriveListBox& drives, DirListBox& folders, FileListBox& files, Missing missing);

  /// A person, or a drive that is not there, changed the folder.
  std::function<void()> on_change;

  /// Drive C and its root; raises no event.
  void ShowFirst();
  /// Raises no event. A folder that has gone leaves the root of its drive on view; when the drive is not there
  /// the lists stay where they were, told by a box.
  void GoTo(const std::string& path);

 private:
  Status Show(const std::string& path);
  void OpenDrive();

  DriveListBox& drives_;
  DirListBox& folders_;
  FileListBox& files_;
  Missing missing_;
};

}  // namespace quixair
