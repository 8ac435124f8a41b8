#pragma once

// QXHelp, the table of the manual's sections. Each button opens one document in the system's word processor.

#include "station/screen/screen.h"

namespace quixair {

class QXHelp : public Screen {
 public:
  explicit QXHelp(const Platform& platform);

  Button Command1{*this, "Command1", " &Contents"};
  Button Command2{*this, "Command2", "Section I:  &Getting Started"};
  Button Command3{*this, "Command3", "Section II: Software &Installation"};
  Button Command4{*this, "Command4", "Section III: &Recording"};
  Button Command5{*this, "Command5", "Section IV: &Playback"};
  Button Command6{*this, "Command6", "Section V: &Satellite Playback"};
  Button Command9{*this, "Command9", "Section VI: &Verification Log"};
  Button Command10{*this, "Command10", "Section VII: &Utilities"};
  Button Command11{*this, "Command11", "Section VIII: &Troubleshooting"};
  Button Command7{*this, "Command7", "Manual of the &Older Version"};
  Button Command8{*this, "Command8", "E&xit Window"};

 private:
  void OpenOnClick(Button& button, std::string_view document);
  void Open(std::string_view document);
};

}  // namespace quixair
