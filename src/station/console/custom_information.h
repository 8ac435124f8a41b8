#pragma once

// CustomInformation, where the station enters its own line for the title of the main window.

#include "station/screen/screen.h"

namespace quixair {

class CustomInformation : public Screen {
 public:
  explicit CustomInformation(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1", "Enter Custom Information for the Main Menu Caption       (40 digits max.):"};
  TextBox Text1{*this, "Text1"};  // the label tells its limit; nothing holds to it
  Button Command1{*this, "Command1", "&Done"};
  Button Command2{*this, "Command2", "&Cancel"};

 private:
  void DropWhatTheFileCannotHold();
  void Done();
};

}  // namespace quixair
