#pragma once

// frmAbout, the program's name and version, whom to ask, and the way to the system's own information.

#include "station/screen/screen.h"

namespace quixair {

class About : public Screen {
 public:
  explicit About(const Platform& platform);
  void Load() override { cmdOK.SetFocus(); }

  Label lblTitle{*this, "lblTitle", "Quixair"};
  Label lblVersion{*this, "lblVersion"};
  Button cmdOK{*this, "cmdOK", "&OK"};
  Button cmdContact{*this, "cmdContact", "&Contact"};
  Button cmdSysInfo{*this, "cmdSysInfo", "System Info"};

 private:
  void ShowContact();
  void ShowSystemInformation();
};

}  // namespace quixair
