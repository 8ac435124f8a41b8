#pragma once

// ImportWin, the screen "Import Recording": an existing .WAV or .MP3 becomes the audio of a data file, chosen
// here or, through IMPORT.DAT, on the entry screen that sent the operator and takes him back.

#include "station/library/hand_over_files.h"
#include "station/recording/import_screen.h"

namespace quixair {

class ImportWin : public ImportScreen {
 public:
  explicit ImportWin(const Platform& platform);
  void Load() override { StartOver(); }
  /// Another data file was sent here while this stood open: it is taken, after the import that runs.
  void PrepareAgain(const ScreenOpening& opening) override;

  Button Command1{*this, "Command1", "&Import Now"};
  Button Command2{*this, "Command2", "&Quit"};
  Button Command3{*this, "Command3", "&Restart"};

 protected:
  std::vector<Control*> LockedByImport() override { return {&Command1, &Command2, &Command3}; }
  void Step() override;
  void Examined(bool playable) override;
  void Copied(std::optional<std::string> length) override;
  void Failed() override { GoBack(); }

 private:
  void StartOver();
  void ChooseDataFile();
  /// Takes the data file when it names a drive.
  void Take(const std::string& id);
  void ImportNow();
  void ReadyForSource();
  /// No import came of the work.
  void BackToSource();
  void SaveFolder();
  /// To the entry screen that asked, or to the start of this one.
  void GoBack();
  /// The same at the operator's wish, who leaves in any case.
  void Leave();
  void OpenEntryScreen();

  std::string id_;  // of the data file chosen; else empty
  std::string drive_;
  std::string folder_;                 // of the source, once there is a choice to be kept
  std::optional<RecordingKind> kind_;  // of the entry screen that asked
  bool asked_again_ = false;           // during the import that runs
};

}  // namespace quixair
