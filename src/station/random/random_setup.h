#pragma once

// RandomSetup, the screen on which an operator edits the settings of Random playback. Choices go to the
// screen's own copy at once and to the file only by Save.

#include <array>

#include "station/random/random_settings.h"
#include "station/screen/screen.h"

namespace quixair {

class RandomSetup : public Screen {
 public:
  explicit RandomSetup(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1", "Number of Songs to Play Between Stingers (1-15)"};
  ListBox List1{*this, "List1"};
  Label Label2{*this, "Label2", "Number of Songs to Play Between Liners (1-15):"};
  ListBox List2{*this, "List2"};
  Label Label3{*this, "Label3", "Number of Songs to Play Between Local Breaks (2-50):"};
  ListBox List3{*this, "List3"};
  Label Label4{*this, "Label4", "Maximum Number of Spots in Each Local Break (Internal) (1-10):"};
  ListBox List4{*this, "List4"};
  Label Label5{*this, "Label5", "Break Playback Type:"};
  ListBox List5{*this, "List5"};
  Label Label6{*this, "Label6", "Play Liner at Beginning of Each Local Break (Internal)?"};
  ListBox List6{*this, "List6"};
  Label Label7{*this, "Label7", "Play Liner at End of Each Local Break (Internal)?"};
  ListBox List7{*this, "List7"};
  Label Label8{*this, "Label8", "Disable Liner Playback?"};
  ListBox List8{*this, "List8"};
  Label Label9{*this, "Label9", "Disable Stinger Playback?"};
  ListBox List9{*this, "List9"};
  Label Label10{*this, "Label10", "Stop-Set Pause Override (Seconds) 0 = OFF/ 999 = Max.:"};
  ListBox List10{*this, "List10"};
  Label Label11{*this, "Label11"};                     // the override's present value
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // status
  Button Command1{*this, "Command1", "&Save"};
  Button Command2{*this, "Command2", "&Refresh "};
  Button Command3{*this, "Command3", "&Quit"};

 private:
  void SetHints();
  void ConnectLists();
  void FillLists();
  void ShowSettings();
  void ShowOverride();
  void Save();

  RandomSettings settings_;
};

}  // namespace quixair
