#pragma once

// The drive on which a recording's audio lies: that of an existing one, or what the operator chooses for a new one,
// whose folder \QXWAVE is made there when he wants it. Owned by an entry screen.

#include <string>

#include "station/platform/run_time_error.h"
#include "station/screen/controls.h"

namespace quixair {

class AudioDrive {
 public:
  /// `hint` is told the folder that is looked at.
  AudioDrive(Screen& screen, TextBox& hint);
  AudioDrive(const AudioDrive&) = delete;
  AudioDrive& operator=(const AudioDrive&) = delete;

  DriveListBox Drive1;

  /// Nothing is chosen.
  void Reset();
  /// For a new recording: that of the latest capture, until another is chosen.
  void Offer();
  /// An existing recording's.
  void Take(std::string letter) { letter_ = std::move(letter); }
  /// One letter, as a text.
  std::string letter() const;
  /// Whether the folder is there or was made; else the focus is on the list and the operator knows why.
  bool HasFolder();

 private:
  void Choose();
  void Leave();
  bool HasFolderOn(char drive);
  bool MakeFolder(char drive);
  void Tell(char drive, const Status& fault);

  Screen& screen_;
  TextBox& hint_;
  std::string letter_;      // empty: none was chosen
  bool looked_at_ = false;  // the one that stands in the list
};

}  // namespace quixair
