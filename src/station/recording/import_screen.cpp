#include "station/recording/import_screen.h"

#include <utility>

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kStep{5};

}  // namespace

ImportScreen::ImportScreen(const Platform& platform, std::string name, std::string title)
    : Screen(platform, std::move(name), std::move(title)) {
  MMControl1.Hide();
  File1.SetPattern("*.DAT");
  File2.SetPattern("*.WAV;*.MP3");
  Timer1.on_tick = [this] { Step(); };
  import_.on_examined = [this](bool playable) { Examined(playable); };
  import_.on_copied = [this](std::optional<std::string> length) { Copied(std::move(length)); };
  import_.on_fault = [this](const Status& fault) {
    TellFault(fault);
    Failed();
  };
}

void ImportScreen::Work(bool working) {
  working_ = working;
  std::vector<Control*> locked = LockedByImport();
  locked.insert(locked.end(), {&File1, &Drive1, &Dir1, &File2});
  for (Control* control : locked) control->Enable(!working);
  Timer1.SetInterval(working ? kStep : std::chrono::milliseconds(0));
}

void ImportScreen::ShowDataFiles() {
  File1.SetPath(std::string(station_paths::kDataFolder));
}

void ImportScreen::TellUnplayable(const std::string& name) {
  platform_.dialogs.MessageBox(
      "This file cannot be played: it is empty or damaged, or holds no sound.\nNothing was changed.",
      box_style::kOk + box_style::kExclamation, "Cannot Import " + name);
}

void ImportScreen::TellOntoItself() {
  platform_.dialogs.MessageBox(
      "You are trying to copy the same file over itself. I think we can both agree that really doesn't\n"
      "make a lot of sense. We'll excuse you this time.",
      box_style::kOk, "Cannot Copy File Onto Itself");
}

bool ImportScreen::MayOverwrite(const AudioImport::Job& job) {
  return platform_.dialogs.MessageBox("Continuing will Overwrite any existing file named " + job.Target() +
                                          " on " + job.TargetFolder(),
                                      box_style::kOkCancel + box_style::kExclamation,
                                      "About to Create " + job.Target() + " From " + job.name) == Answer::kOk;
}

void ImportScreen::TellFault(const Status& fault) {
  const AudioImport::Job& job = import_.job();
  if (fault.error() == RunTimeError::kPathNotFound || fault.error() == RunTimeError::kDiskNotReady) {
    platform_.dialogs.MessageBox(
        "The destination drive may be unavailable.  Check your\nhardware.  If drive " + job.drive +
            " is no longer available, delete the\ndata file " + job.id +
            ".DAT and re-enter using a valid drive.",
        box_style::kOk, "Path Not Found");
    return;
  }
  platform_.dialogs.MessageBox(
      "An abnormal error has occured.  This program will terminate.\n"
      "Note that the file may NOT have been imported.",
      box_style::kOk, "An Error Has Occurred: Err = " + std::to_string(fault.number()));
  EndProgram();
}

}  // namespace quixair
