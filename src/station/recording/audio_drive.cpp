#include "station/recording/audio_drive.h"

#include <utility>

#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/recorder.h"
#include "station/screen/screen.h"

namespace quixair {

AudioDrive::AudioDrive(Screen& screen, TextBox& hint)
    : Drive1(screen, "Drive1"), screen_(screen), hint_(hint) {
  Drive1.on_click = [this] { Choose(); };
  Drive1.on_lost_focus = [this] { Leave(); };
}

void AudioDrive::Reset() {
  letter_.clear();
  Drive1.Hide();
  Drive1.Enable();
  looked_at_ = false;
}

void AudioDrive::Offer() {
  Drive1.Refresh();
  Drive1.SelectDrive(letter().front());
  Drive1.Show();
}

std::string AudioDrive::letter() const {
  return letter_.empty() ? std::string(1, screen_.platform().capture.drive()) : letter_;
}

bool AudioDrive::HasFolder() {
  const bool there = HasFolderOn(letter().front());
  if (!there) Drive1.SetFocus();
  return there;
}

void AudioDrive::Choose() {
  looked_at_ = true;
  const char chosen = Drive1.drive();
  if (HasFolderOn(chosen)) {
    letter_ = chosen;
    return;
  }
  Drive1.SelectDrive(letter().front());
  Drive1.SetFocus();
}

/// Once: who does not want the folder made is not kept in the list for ever.
void AudioDrive::Leave() {
  if (!std::exchange(looked_at_, true) && !HasFolderOn(Drive1.drive())) Drive1.SetFocus();
}

bool AudioDrive::HasFolderOn(char drive) {
  const std::string folder = std::string(1, drive) + ":\\qxwave";
  hint_.SetText(folder);
  const Status there = screen_.platform().files.ListFolders(folder).status();
  if (there.ok()) return true;
  if (there.error() == RunTimeError::kPathNotFound) return MakeFolder(drive);
  Tell(drive, there);
  return false;
}

bool AudioDrive::MakeFolder(char drive) {
  Dialogs& dialogs = screen_.platform().dialogs;
  const std::string name(1, drive);
  const Answer wanted = dialogs.MessageBox(
      "You can select a different drive, or create the folder to hold recordings.\n"
      "Do you want to try to create the QXWAVE folder on drive " +
          name + " now?",
      box_style::kYesNo + box_style::kExclamation, "The QXWAVE Folder Doesn't Exist on Drive " + name);
  if (wanted != Answer::kYes) return false;
  const Answer sure = dialogs.MessageBox(
      "We will now try to create the QXWAVE directory on Drive " + name +
          ".  An error will\n"
          "occur if you are trying to write to a 'read-only' device such as a CD ROM.",
      box_style::kOkCancel + box_style::kInformation, "About to Attempt QXWAVE Folder Creation");
  if (sure != Answer::kOk) return false;
  const Status made = screen_.platform().files.MakeFolder(name + ":\\QXWAVE");
  if (!made.ok()) Tell(drive, made);
  return made.ok();
}

void AudioDrive::Tell(char drive, const Status& fault) {
  screen_.platform().dialogs.MessageBox(std::string("Make sure the ") + drive +
                                            " Drive is ready, and try again.\n"
                                            "Otherwise, select a different recording drive.",
                                        box_style::kCritical,
                                        "An Error Has Occurred: Err = " + std::to_string(fault.number()));
}

}  // namespace quixair
