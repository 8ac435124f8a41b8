#pragma once

// EraseUtility erases recordings: the operator gathers them in a list as in the template editor, and Erase List
// deletes the data file and the audio of each. What is erased is gone; templates that name it are not touched.
// The screen holds the controls and its loading; EraseEditor is what the operator does.

#include <memory>
#include <string>

#include "station/templates/event_list_screen.h"

namespace quixair {

class EraseEditor;

class EraseUtility : public EventListScreen {
 public:
  explicit EraseUtility(const Platform& platform);
  ~EraseUtility() override;
  void Load() override;
  /// Recordings that came meanwhile are listed, unless some are chosen to be erased.
  void PrepareAgain(const ScreenOpening& opening) override;
  void CloseWindow() override;

  Button Command1{*this, "Command1", "&Erase List"};
  Button Command2{*this, "Command2", "Clear &List"};
  CheckBox Check1{*this, "Check1", "&Ask Before Deleting Each File"};

  /// Reads the library anew, as it is after an erasure; the kind that was shown is shown again.
  void Reopen();

 protected:
  bool GoOnAfter(const Status& fault, const std::string& id) override;
  void Loaded() override;

 private:
  void SaveAsk();

  std::unique_ptr<EraseEditor> editor_;
};

}  // namespace quixair
