#pragma once

// What the two import screens share: the way through drives and folders to the source, the steps of an import
// on a timer with the controls locked meanwhile, and the boxes of its faults. What they do with a source is
// their own.

#include <optional>
#include <string>
#include <vector>

#include "station/console/folder_choice.h"
#include "station/recording/audio_import.h"
#include "station/recording/audition.h"
#include "station/screen/screen.h"

namespace quixair {

class ImportScreen : public Screen {
 public:
  ImportScreen(const Platform& platform, std::string name, std::string title);

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // what to do next
  Label Label5{*this, "Label5"};                       // what is being done
  Label Progress{*this, "Progress"};                   // how far it is
  FileListBox File1{*this, "File1"};                   // the data files
  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Dir1{*this, "Dir1"};
  FileListBox File2{*this, "File2"};                               // the sources
  MediaControl MMControl1{*this, "MMControl1", kAuditionChannel};  // measures; not shown
  Timer Timer1{*this, "Timer1"};                                   // the steps of an import

 protected:
  /// Locks the screen for an import, or gives it back.
  void Work(bool working);
  bool IsWorking() const { return working_; }
  void ShowDataFiles();
  /// That the source cannot be played.
  void TellUnplayable(const std::string& name);
  void TellOntoItself();
  /// The question before a file is overwritten.
  bool MayOverwrite(const AudioImport::Job& job);
  /// Returns where the fault leaves the program alive: the drive or its folder is not there.
  void TellFault(const Status& fault);

  /// Controls that an import locks, besides those above.
  virtual std::vector<Control*> LockedByImport() = 0;
  /// The time for a step.
  virtual void Step() = 0;
  virtual void Examined(bool playable) = 0;
  virtual void Copied(std::optional<std::string> length) = 0;
  /// The fault was told.
  virtual void Failed() = 0;

  FolderChoice source_{Drive1, Dir1, File2, FolderChoice::Missing::kBackToDriveC};
  AudioImport import_{platform_, Label5, MMControl1};

 private:
  bool working_ = false;
};

}  // namespace quixair
