#pragma once

// BuildTemplate1, the template editor: the station's recordings below, the events of the template above. It
// opens in one of five modes, told by PIKMODE.DTA: it edits a Pick-List template, a Simple-Sat template or
// the rotation file, or builds a list that is played at once. The template is kept in memory and written by
// Save alone. The screen holds the controls, its mode and its loading; TemplateEditor is what the operator
// does.

#include <array>
#include <memory>
#include <string>

#include "station/platform/screen.h"
#include "station/templates/editor_library.h"

namespace quixair {

class TemplateEditor;

class BuildTemplate1 : public Screen {
 public:
  explicit BuildTemplate1(const Platform& platform);
  ~BuildTemplate1() override;
  void Load() override;
  void CloseWindow() override;

  // what is edited
  Label Label2{*this, "Label2"};  // the template in use, or the mode
  Label EntriesLabel{*this, "EntriesLabel", "Template Entries:"};
  ListBox List2{*this, "List2"};                       // the entries
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // totals
  TextBox Text2{*this, "Text2", TextBox::Use::kShow};  // what just happened
  TextBox Text3{*this, "Text3", TextBox::Use::kShow};  // hints and counts

  // the library
  Label FilesLabel{*this, "FilesLabel"};      // "Existing Files:  [Spots]"
  Label ColumnsLabel{*this, "ColumnsLabel"};  // heading of the columns
  ListBox List1{*this, "List1"};              // music
  ListBox List3{*this, "List3"};              // spots
  ListBox List4{*this, "List4"};              // liners
  Button Command10{*this, "Command10", "&Spots"};
  Button Command11{*this, "Command11", "&Music"};
  Button Command12{*this, "Command12", "&Liners"};

  // operations
  Button Command1{*this, "Command1", "Sa&ve "};
  Button Command2{*this, "Command2", "&Insert"};
  Button Command3{*this, "Command3", "&Cut"};
  Button Command4{*this, "Command4", " &Pause"};
  Button Command5{*this, "Command5", "&Time"};
  Button Command6{*this, "Command6", "Ma&nual    Entry"};
  Button Command15{*this, "Command15", "Hide Ma&nual"};
  Button Command7{*this, "Command7", "Clear         &File"};
  Button Command9{*this, "Command9", "&Quit"};
  Button Command13{*this, "Command13", "&Range      Total"};
  Button localbreak{*this, "localbreak", "&Local      Break"};
  Label Label7{*this, "Label7", "Manual:"};
  TextBox Text8{*this, "Text8"};  // the manual box

  // local break
  Frame Frame2{*this, "Frame2", "Local Break Setup:"};
  ListBox List7{Frame2, "List7"};  // hours
  ListBox List8{Frame2, "List8"};  // minutes
  OptionButton Option1{Frame2, "Option1", "&AM"};
  OptionButton Option2{Frame2, "Option2", "P&M"};
  TextBox Text9{Frame2, "Text9", TextBox::Use::kShow};  // the composed time
  Button Command16{Frame2, "Command16", "A&ccept"};
  Button Command17{Frame2, "Command17", "&Hide"};

  // range calculator
  Frame Frame1{*this, "Frame1", "Range Total Calculator"};
  Label FromLabel{Frame1, "FromLabel", "From"};
  ListBox List5{Frame1, "List5"};
  Label ToLabel{Frame1, "ToLabel", "To"};
  ListBox List6{Frame1, "List6"};
  TextBox Text5{Frame1, "Text5", TextBox::Use::kShow};
  TextBox Text6{Frame1, "Text6", TextBox::Use::kShow};
  TextBox Text7{Frame1, "Text7", TextBox::Use::kShow};
  Button Command14{Frame1, "Command14", "&Refresh"};
  Button Command8{Frame1, "Command8", "&Hide"};

  EditorList music;
  EditorList spots;
  EditorList liners;

  void ShowLibrary(ListBox& list);
  /// The library list that is showing.
  ListBox& shown_library();

 private:
  bool LoadLibrary();
  bool LoadKind(EditorList& list, RecordingKind kind, const char* word, const char* title_word);
  bool SetUpMode();
  void FillLists();

  std::unique_ptr<TemplateEditor> editor_;
};

}  // namespace quixair
