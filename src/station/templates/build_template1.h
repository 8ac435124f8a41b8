#pragma once

// BuildTemplate1, the template editor: the station's recordings below, the events of the template above. It
// opens in one of five modes, told by PIKMODE.DTA: it edits a Pick-List template, a Simple-Sat template or
// the rotation file, or builds a list that is played at once. The template is kept in memory and written by
// Save alone. The screen holds the controls, its mode and its loading; TemplateEditor is what the operator
// does.

#include <memory>

#include "station/templates/event_list_screen.h"

namespace quixair {

class TemplateEditor;

class BuildTemplate1 : public EventListScreen {
 public:
  explicit BuildTemplate1(const Platform& platform);
  ~BuildTemplate1() override;
  void Load() override;
  /// A new hand-over is taken in an event of its own, since the operator may be asked first.
  void PrepareAgain(const ScreenOpening& opening) override;
  void CloseWindow() override;

  Timer HandOverTimer{*this, "HandOverTimer"};

  // operations
  Button Command1{*this, "Command1", "Sa&ve "};
  Button Command2{*this, "Command2", "&Insert"};
  Button Command4{*this, "Command4", " &Pause"};
  Button Command5{*this, "Command5", "&Time"};
  Button Command7{*this, "Command7", "Clear         &File"};
  Button Command13{*this, "Command13", "&Range      Total"};
  Button localbreak{*this, "localbreak", "&Local      Break"};

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

 protected:
  /// On-Air Assist is worked from the manual box.
  Control& RestingPlace() override;
  Step LoadMore() override;
  void Loaded() override;

 private:
  /// False when a kind has too few recordings to begin with; each such kind has been told.
  bool LibraryIsLargeEnough();
  void SetUpMode();
  void TakeHandOver();

  std::unique_ptr<TemplateEditor> editor_;
};

}  // namespace quixair
