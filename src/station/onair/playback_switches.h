#pragma once

// The check boxes of both playback screens, each stored in its file the moment it is ticked: the verification
// log (a file for each mode), the pause behind Begin Next and the spot date check (one file for both). A
// switch that cannot be stored holds for the run.

#include <string>
#include <string_view>

#include "station/screen/controls.h"

namespace quixair {

class Files;

class PlaybackSwitches {
 public:
  /// `verification_file` of the mode, which holds 0 for on: the reverse of the others.
  PlaybackSwitches(Screen& owner, std::string_view verification_file);

  CheckBox Check2;  // verification log
  CheckBox Check3;  // pause after Begin Next
  CheckBox Check4;  // spot date check

  /// As the files say; a missing file is log on, no pause, dates unknown.
  void ReadFiles();
  bool verification_on() const { return Check2.ticked(); }
  bool pause_after_next() const { return Check3.ticked(); }

 private:
  void ShowVerification();
  Files& files() const;

  std::string verification_file_;
};

}  // namespace quixair
