#pragma once

// PickListForm2, a prompt for the start time of a pick-list. Nothing of the station opens it; it keeps the
// meaning of START.TMP for other programs.

#include "station/platform/screen.h"

namespace quixair {

class PickListForm2 : public Screen {
 public:
  explicit PickListForm2(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1",
               "Enter the time for startup HH:MM A/P.          Click the Done Button to Activate."};
  ListBox List1{*this, "List1"};  // hours
  ListBox List2{*this, "List2"};  // minutes
  ListBox List3{*this, "List3"};  // AM, PM
  Label Label2{*this, "Label2", "Selected = "};
  Button Command1{*this, "Command1", "&Done"};
  Button Command2{*this, "Command2", "&Cancel"};

 private:
  void Choose();
  void Done();
  void OpenPlayback();

  std::string StartTimeText;
};

}  // namespace quixair
