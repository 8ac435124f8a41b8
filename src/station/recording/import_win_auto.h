#pragma once

// ImportWinAuto, the "Fast Song Importer ": every selected file becomes a song with an id of its own, artist,
// title and year taken from the file's name and the date. A run goes file by file on the screen's timer; it
// can be stopped between two files. What was imported is whole, what was not is untouched, and no data file
// that exists is ever changed.

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "station/platform/clock.h"
#include "station/recording/import_screen.h"
#include "station/recording/song_from_file.h"

namespace quixair {

class ImportWinAuto : public ImportScreen {
 public:
  explicit ImportWinAuto(const Platform& platform);
  void Load() override { StartOver(); }

  DriveListBox Drive2{*this, "Drive2"};  // where the songs go
  Frame Frame1{*this, "Frame1", "File Name Convention:"};
  OptionButton Option1{Frame1, "Option1", "Alphabetic"};
  OptionButton Option2{Frame1, "Option2", "Numeric"};
  CheckBox Check1{*this, "Check1", "Ask Before Importing Each Selected File"};
  TextBox Text2{*this, "Text2"};  // artist
  TextBox Text3{*this, "Text3"};  // title
  TextBox Text4{*this, "Text4"};  // year
  Button Command1{*this, "Command1", "&Import"};
  Button Command2{*this, "Command2", "&Quit"};  // stops a run
  Button Command3{*this, "Command3", "&Restart"};
  Button Command4{*this, "Command4", "Help"};

 protected:
  std::vector<Control*> LockedByImport() override;
  void Step() override;
  void Examined(bool playable) override;
  void Copied(std::optional<std::string> length) override;
  void Failed() override;

 private:
  /// One pass through the selected files.
  struct Run {
    SongIds ids;
    std::vector<std::string> names;
    std::set<std::string> sources;  // their paths, upper-cased
    std::size_t next = 0;           // the file in turn
    std::size_t imported = 0;
    bool stop = false;
    std::vector<std::string> left_out;  // with the reason
    SteadyTime not_before{};            // the next file has to wait so long
  };

  void StartOver();
  void ReadSettings();
  void SaveSettings();
  /// Lower case, as the songs' data files hold it; empty when none was chosen.
  std::string TargetDrive() const;
  void TargetDriveChosen();
  void ShowTargetDrive();
  void Import();
  void NextFile();
  void AskForFields(const std::string& id, const std::string& name);
  /// The id's old audio is a file that this run is to import, perhaps later.
  bool WouldRemoveASource(const AudioImport::Job& job) const;
  Status WriteSong(const std::string& id);
  /// The file in turn; `reason` is told at the end.
  void LeaveOut(const char* reason);
  void ShowProgress();
  void EndRun();
  void TellEndOfSeries();
  void ShowHelp();

  std::optional<Run> run_;
  std::string
      length_;  // of the last song measured: one that cannot be measured takes it over, as it always did
};

}  // namespace quixair
