#pragma once

// The three screens that prepare a new machine, each opening the next: the recorder's components, the
// station's folders, the folders for audio on further drives.

#include <array>

#include "station/screen/screen.h"

namespace quixair {

class MMregOCX : public Screen {
 public:
  explicit MMregOCX(const Platform& platform);

  Label Label1{
      *this, "Label1",
      "Your system will now be configured to allow certain recording and playback features to function..."};
  Button Command1{*this, "Command1", "&OK"};

 private:
  void RegisterAndGoOn();
};

class InstallInfo : public Screen {
 public:
  explicit InstallInfo(const Platform& platform);

  Label Label1{*this, "Label1", "The following directories will now be created on your hard drive:"};
  std::array<Label, 5> FolderLabel{Label{*this, "FolderLabel(0)"}, Label{*this, "FolderLabel(1)"},
                                   Label{*this, "FolderLabel(2)"}, Label{*this, "FolderLabel(3)"},
                                   Label{*this, "FolderLabel(4)"}};
  Label Label2{*this, "Label2", "*Note:  If this is a re-install, your existing data will not be harmed."};
  Button Command1{*this, "Command1", "&OK"};
  Button Command2{*this, "Command2", "&Cancel"};

 private:
  void MakeFolders();
  void Cancel();
};

class InstallInfo2 : public Screen {
 public:
  explicit InstallInfo2(const Platform& platform);

  Label Label1{*this, "Label1"};  // the question
  Label Label2{*this, "Label2"};  // the note, then the progress
  Button Command1{*this, "Command1", "&OK"};
  Button Command2{*this, "Command2", "&Cancel"};

 private:
  void MakeAudioFolders();
  void ShowNotices();
};

}  // namespace quixair
