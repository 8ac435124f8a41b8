#pragma once

// BuildTemplate, the way from the menu to the template editor: an existing template is chosen, or a new one
// named. The name is handed over in PIKNAME.DTA; the menu has said in PIKMODE.DTA which family it is of.

#include <optional>
#include <string>

#include "station/screen/screen.h"
#include "station/templates/template_choice.h"

namespace quixair {

class BuildTemplate : public Screen {
 public:
  explicit BuildTemplate(const Platform& platform);
  /// The pattern of the custom templates, and the names of the daily ones.
  void Prepare(const ScreenOpening& opening) override;
  void PrepareAgain(const ScreenOpening& opening) override { Prepare(opening); }

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  Label Label1{*this, "Label1", "Custom Templates"};
  FileListBox File1{*this, "File1"};
  Label Label2{*this, "Label2", "Daily Templates"};
  ListBox List1{*this, "List1"};  // all seven, whether they have been saved or not
  Button NewTemplate{*this, "NewTemplate", "&New Template"};
  Button Done{*this, "Done", "&Done"};
  Button Quit{*this, "Quit", "&Quit"};

 private:
  void NameNewTemplate();
  /// The file name that the typed text makes; none when it makes none, which has been told.
  std::optional<std::string> NewFileName(const std::string& typed);
  std::string Extension() const;
  void OpenEditor(const std::string& name);

  TemplateChoice choice_{File1, List1, Done};
};

}  // namespace quixair
