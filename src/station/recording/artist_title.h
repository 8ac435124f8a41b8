#pragma once

// ArtistTitle, the "Data File Editor": goes through the songs in the folder's own order, so that artist,
// title, rotation and year can be put right one song after the other. All songs are read once at the start,
// in portions, since a library of thousands must not hold up the air; a save does not change what was read, so
// that a song that is gone back to shows its old texts. That is how the screen always was.

#include <string>
#include <vector>

#include "station/library/recording.h"
#include "station/screen/portioned_work.h"
#include "station/screen/screen.h"

namespace quixair {

class ArtistTitle : public Screen {
 public:
  explicit ArtistTitle(const Platform& platform);
  void Load() override;
  /// Songs that came or went meanwhile are taken up, unless a song in the boxes was edited.
  void PrepareAgain(const ScreenOpening& opening) override;

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // their number
  TextBox Text2{*this, "Text2", TextBox::Use::kShow};  // the hint
  ListBox List1{*this, "List1"};                       // the songs' files
  TextBox artisttext{*this, "artisttext"};
  TextBox titletext{*this, "titletext"};
  TextBox RotationText{*this, "RotationText"};
  TextBox fromyeartext{*this, "fromyeartext"};
  TextBox startdatetext{*this, "startdatetext", TextBox::Use::kShow};
  TextBox lengthtext{*this, "lengthtext", TextBox::Use::kShow};
  TextBox idtext{*this, "idtext", TextBox::Use::kShow};
  TextBox drivetext{*this, "drivetext", TextBox::Use::kShow};
  Label Label12{*this, "Label12", "* = Read Only"};
  Label Label14{*this, "Label14", "DO NOT use double quotes (\") in data fields"};
  Button Command1{*this, "Command1", "&Save Item"};
  Button Command2{*this, "Command2", "&Quit"};
  Button Command3{*this, "Command3", "&Help"};
  Timer Timer1{*this, "Timer1"};  // reads the next portion

 private:
  struct Song {
    std::string file;
    Recording recording;
  };
  std::vector<std::string> SongFiles() const;
  bool IsEdited() const;
  /// The next one; true while more are left.
  bool ReadSong();
  Recording Edited() const;
  void ShowAll();
  void LoadSelected();
  void SaveItem();
  void ShowFields(const Recording& song);
  void ShowHelp();

  std::vector<Song> songs_;  // in the folder's order
  std::size_t read_ = 0;     // of them
  std::size_t loaded_ = 0;   // the one in the boxes
  std::string begin_at_;     // the file that is loaded first, if it is there
  PortionedWork reading_{Timer1};
};

}  // namespace quixair
