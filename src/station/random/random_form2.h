#pragma once

// RandomForm2, a small chooser of a start time for Random playback that writes it to START.TMP for other
// programs.

#include "station/platform/screen.h"

namespace quixair {

class RandomForm2 : public Screen {
 public:
  explicit RandomForm2(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1",
               "Enter the time for startup HH:MM A/P.          Click the Done Button to Activate."};
  ListBox List1{*this, "List1"};  // hours
  ListBox List2{*this, "List2"};  // minutes
  ListBox List3{*this, "List3"};  // AM, PM
  Label Label2{*this, "Label2", "Selected = "};
  Button Command1{*this, "Command1", "&Done"};

 private:
  void Choose();
  void Done();
};

}  // namespace quixair
