#pragma once

// What the template editor and the screen that erases recordings have in common to look at: the entries above,
// one of the three library lists below, the manual box, and the buttons that belong to them. EventListEditor is
// what the operator does with them; what else a screen offers, and what it wants of a library, is its own.
//
// The library is read in portions between which the station goes on: until all of it is there only Quit can be
// pressed, and Text3 counts.

#include <array>
#include <string>
#include <vector>

#include "station/screen/portioned_work.h"
#include "station/screen/screen.h"
#include "station/templates/editor_library.h"

namespace quixair {

/// What tells the screens apart where they are alike.
struct EventListKind {
  const char* screen;
  const char* title;
  LibraryColumns columns;
  const char* cut_caption;
  const char* manual_caption;
  const char* too_few_to_cut;  // told when there is nothing to cut
  const char* banner;          // stands in Text3 when no prompt does
};

class EventListScreen : public Screen {
 protected:
  /// `kind` outlives the screen.
  EventListScreen(const Platform& platform, const EventListKind& kind);
  const EventListKind& kind_;

 public:
  const EventListKind& kind() const { return kind_; }

  // the entries
  Label Label2{*this, "Label2"};  // what is worked on
  Label EntriesLabel{*this, "EntriesLabel", "Template Entries:"};
  ListBox List2{*this, "List2"};
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
  Button Command3{*this, "Command3", kind_.cut_caption};
  Button Command6{*this, "Command6", kind_.manual_caption};
  Button Command15{*this, "Command15", "Hide Ma&nual"};
  Button Command9{*this, "Command9", "&Quit"};
  Label Label7{*this, "Label7", "Manual:"};
  TextBox Text8{*this, "Text8"};  // the manual box

  Timer LoadTimer{*this, "LoadTimer"};  // reads the next portion

  struct Library {
    EditorList files;
    ListBox& list;
    Button& button;
    const char* label;
    const char* what;  // "Spot Files Present", behind a number
    const char* none;
  };
  /// In the order in which they are read: music, spots, liners.
  std::array<Library, 3>& libraries() { return libraries_; }
  /// The library list that is showing.
  ListBox& shown_library();
  /// Where the operator goes on when a step is done.
  void SetRestingFocus() { RestingPlace().SetFocus(); }

 protected:
  virtual Control& RestingPlace() { return shown_library(); }
  void ShowLibrary(ListBox& list);
  /// Finds out what is there, without reading it.
  void ListLibrary();
  /// Reads the library, then what else there is to load; the end of it is Loaded.
  void StartLoading();
  bool loading() const { return loading_; }

  /// The data file of `id` cannot be read: false leaves the loading, and the screen is on its way out.
  virtual bool GoOnAfter(const Status&, const std::string& /*id*/) { return true; }
  enum class Step { kMore, kDone, kLeft };  // kLeft: the operator would rather not go on
  /// Loads a little of what comes after the library.
  virtual Step LoadMore() { return Step::kDone; }
  /// Everything is there and the screen is the operator's again.
  virtual void Loaded() {}
  /// How many there are of each, for Text3.
  std::string CountsText() const;

 private:
  Step LoadStep();
  void FinishLoading();
  void HoldControls();
  void FreeControls();

  std::array<Library, 3> libraries_;
  std::vector<Control*> held_;
  bool loading_ = false;
  bool left_ = false;  // the operator would rather not go on
  PortionedWork load_{LoadTimer};
};

}  // namespace quixair
