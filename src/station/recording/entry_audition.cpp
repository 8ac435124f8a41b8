// Listening to a recording on an entry screen, measuring it, and the drive that a new one goes to.

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/recorder.h"
#include "station/platform/text.h"
#include "station/recording/entry_screen.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kPositionInterval{350};

std::string AudioFolder(char letter) {
  return std::string(1, letter) + ":\\qxwave";
}

}  // namespace

void EntryScreen::Audition() {
  mode_ = Mode::kAudition;
  EnableChoices(false);
  Command8.Enable();
  if (*kind_.audition_done != '\0') {
    Command9.SetCaption(kind_.audition_done);
    Command9.Enable();
  }
  Text1.SetText("Audition an Existing Recording...");
  const std::string id = platform_.dialogs.InputBox(
      "Enter ID, then 'OK', or 'Cancel' to choose from list..\n"
      "[Make sure you include 'S' 'M' or 'L' as the first digit.]",
      "Audition Recording", {.text = letter_, .use = InputOffer::Use::kBeginning});
  if (id.empty()) {
    File1.Enable();
    File1.SetFocus();
  } else {
    Play(id);
  }
}

/// An id of another kind is taken by this screen's lines, too short a file ending the program: wanted.
void EntryScreen::Play(const std::string& id) {
  Recording recording(id, kind_.kind);
  const Status read = recording.Read(platform_.files);
  if (!read.ok()) {
    TellNotRead(read, id, AbnormalFault::kEndsProgram);
    if (read.error() == RunTimeError::kFileNotFound) Load();
    return;
  }
  data.id().SetMaxLength(static_cast<int>(id.size()));
  data.Show(recording);
  const std::string path = AudioPath(recording.value(Field::kDrive), id);
  OpenAudio(path);
  if (MMControl1.Mode() == ChannelMode::kNotOpen) {
    Text1.SetText("There is no audio to play: " + (path.empty() ? id : path));
    return;
  }
  Text1.SetText(path);
  data.length().SetText(ShortestSeconds(MMControl1.Length()));
  Timer1.SetInterval(kPositionInterval);
  Timer1.SetEnabled(true);
  MMControl1.Command(ChannelCommand::kPlay);
}

void EntryScreen::ShowPosition() {
  Text1.SetText("Playback Position = " + ShortestSeconds(MMControl1.Position()) + " Seconds");
}

std::string EntryScreen::AudioPath(const std::string& drive, const std::string& id) const {
  if (!kind_.plays_mp3) return station_paths::AudioFile(drive, id, ".wav");
  const std::optional<std::string> extension = FindAudioFile(platform_.files, drive, id);
  return extension ? station_paths::AudioFile(drive, id, *extension) : std::string();
}

void EntryScreen::OpenAudio(const std::string& path) {
  OpeningAudio(true, path);
  MMControl1.SetFileName(path);
  MMControl1.Command(ChannelCommand::kOpen);
  OpeningAudio(false, path);
}

/// Audio that is not there leaves the length as the data file has it.
void EntryScreen::MeasureAudio(const std::string& id) {
  OpenAudio(AudioPath(drive_, id));
  if (MMControl1.Mode() != ChannelMode::kNotOpen) {
    data.length().SetText(ShortestSeconds(MMControl1.Length()));
  }
  MMControl1.Command(ChannelCommand::kClose);
}

void EntryScreen::DriveChosen() {
  const char letter = Drive1.drive();
  if (DriveHasFolder(letter)) {
    drive_ = letter;
    return;
  }
  Drive1.SelectDrive(drive_.empty() ? platform_.capture.drive() : drive_.front());
  Drive1.SetFocus();
}

bool EntryScreen::DriveHasFolder(char letter) {
  Text1.SetText(AudioFolder(letter));
  const Status there = platform_.files.ListFolders(AudioFolder(letter)).status();
  if (there.ok()) return true;
  if (there.error() == RunTimeError::kPathNotFound) return MakeAudioFolder(letter);
  TellDriveFault(letter, there);
  return false;
}

bool EntryScreen::MakeAudioFolder(char letter) {
  Dialogs& dialogs = platform_.dialogs;
  const std::string name(1, letter);
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
  const Status made = platform_.files.MakeFolder(name + ":\\QXWAVE");
  if (!made.ok()) TellDriveFault(letter, made);
  return made.ok();
}

void EntryScreen::TellDriveFault(char letter, const Status& fault) {
  platform_.dialogs.MessageBox(std::string("Make sure the ") + letter +
                                   " Drive is ready, and try again.\n"
                                   "Otherwise, select a different recording drive.",
                               box_style::kCritical,
                               "An Error Has Occurred: Err = " + std::to_string(fault.number()));
}

}  // namespace quixair
