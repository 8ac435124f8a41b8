#pragma once

// RemoveSatSpot takes all spots out of a Simple-Sat template and leaves every other event as it stands. The
// whole template is read before it is written; one without its terminating record ends the program and stays
// as it was.

#include <string>

#include "station/screen/screen.h"

namespace quixair {

class RemoveSatSpot : public Screen {
 public:
  explicit RemoveSatSpot(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1",
               "WARNING!  This utility removes all spot items from the template that you select."};
  Label Label2{*this, "Label2", "Simple-Sat Templates:"};
  FileListBox File1{*this, "File1"};
  Label Label3{*this, "Label3"};  // the name of the file that is selected
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  Button Done{*this, "Done", "&Done"};
  Button Quit{*this, "Quit", "&Quit"};

 private:
  void ShowName();
  void RemoveSpots();
  Status Rewrite(const std::string& name);
};

}  // namespace quixair
