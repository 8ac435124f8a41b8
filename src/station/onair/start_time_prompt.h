#pragma once

// A small prompt for a start time, of which each playback mode has one. It writes the time to START.TMP for
// other programs and shows the mode's screen. Nothing of the station opens it.

#include <string>

#include "station/screen/screen.h"

namespace quixair {

class StartTimePrompt : public Screen {
 public:
  /// `playback_screen` is what it leads to.
  StartTimePrompt(const Platform& platform, std::string name, std::string playback_screen);
  void Load() override;

  Label Label1{*this, "Label1",
               "Enter the time for startup HH:MM A/P.          Click the Done Button to Activate."};
  ListBox List1{*this, "List1"};  // hours
  ListBox List2{*this, "List2"};  // minutes
  ListBox List3{*this, "List3"};  // AM, PM
  Label Label2{*this, "Label2", "Selected = "};
  Button Command1{*this, "Command1", "&Done"};

 protected:
  void ShowPlayback();

 private:
  void Choose();
  void Done();

  std::string playback_screen_;
};

class RandomForm2 : public StartTimePrompt {
 public:
  explicit RandomForm2(const Platform& platform) : StartTimePrompt(platform, "RandomForm2", "RandomForm1") {}
};

/// Can also be left without a time.
class PickListForm2 : public StartTimePrompt {
 public:
  explicit PickListForm2(const Platform& platform);
  Button Command2{*this, "Command2", "&Cancel"};
};

}  // namespace quixair
