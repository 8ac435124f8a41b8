#pragma once

// CopySatTemp writes the events of one Simple-Sat template over another. The whole source is read before the
// destination is touched; one without its terminating record ends the program and leaves both as they were.

#include <string>

#include "station/screen/screen.h"

namespace quixair {

class CopySatTemp : public Screen {
 public:
  explicit CopySatTemp(const Platform& platform);
  void Load() override;

  Label Label1{*this, "Label1",
               "This routine allows you to copy all of the data contained in an existing daily template to "
               "another daily template."};
  Label Label2{*this, "Label2",
               "WARNING!  ALL EXISTING CONTENTS OF THE DESTINATION TEMPLATE WILL BE REPLACED."};
  Label Label3{*this, "Label3", "Copy From:"};
  FileListBox File1{*this, "File1"};
  Label Label4{*this, "Label4", "Copy To:"};
  FileListBox File2{*this, "File2"};
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  Button Done{*this, "Done", "&Done"};
  Button Quit{*this, "Quit", "&Quit"};

 private:
  void CopyData();
  Status Copy(const std::string& source, const std::string& destination);
};

}  // namespace quixair
