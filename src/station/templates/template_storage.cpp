// How the template editor reads and writes: the template's file with its faults, saving, playing, quitting.

#include <utility>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/recording.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"
#include "station/templates/build_template1.h"
#include "station/templates/template_choice.h"
#include "station/templates/template_editor.h"

namespace quixair {
namespace {

bool HasDataFile(const TemplateEvent& event) {
  return KindOfEvent(event.EventId) == EventKind::kRecording;
}

}  // namespace

void TemplateEditor::SetMode(int pik_mode) {
  constexpr int kImmediate = 1;
  constexpr int kSimpleSat = 2;
  constexpr int kRotation = 3;
  constexpr int kAssist = 4;
  pik_mode_ = pik_mode;
  assists_ = pik_mode == kAssist;
  PlayMode = pik_mode == kImmediate || pik_mode == kAssist ? 1 : 0;
  screen_.Command1.SetCaption(PlayMode == 1 ? "&Play" : "&Save");
  screen_.localbreak.Enable(pik_mode == kSimpleSat);
  screen_.Command4.Enable(pik_mode != kSimpleSat && pik_mode != kRotation);
  screen_.Command6.Enable(!assists_);
  if (pik_mode == kImmediate) screen_.Label2.SetCaption("IMMEDIATE Playback");
  if (assists_) {
    screen_.SetTitle("On-Air Assist");
    screen_.Label2.SetCaption("ON-AIR ASSIST");
    ShowManual(true);
  }
}

bool TemplateEditor::OpenTemplate() {
  if (std::exchange(template_read_, true)) return true;
  const Platform& platform = screen_.platform();
  TemplateName = ReadSetting(platform.files, station_paths::kPikName).value_or(std::string());
  screen_.Label2.SetCaption("Template in Use: " + TemplateName);
  const Result<std::string> content = platform.files.Read(station_paths::TemplateFile(TemplateName));
  if (!content.ok()) return TellUnreadable(content.status());
  if (!ParseTemplate(content.value()).ok()) {
    platform.dialogs.MessageBox(
        "This template may contain data abnormalities.  Loading will\n"
        "continue, but please note that you may have difficulty using\n"
        "it later.  Make sure there are no empty events in " +
            TemplateName,
        box_style::kCritical, "Possible Data Corruption");
  }
  events_ = EventsBeforeLast(content.value());
  if (events_.size() > TemplateEntries::kMost) events_.resize(TemplateEntries::kMost);
  return true;
}

bool TemplateEditor::TellUnreadable(const Status& fault) {
  const bool missing = fault.error() == RunTimeError::kFileNotFound;
  const std::string title =
      missing ? std::string("File Not Found") : "Error: " + std::to_string(fault.number());
  const std::string text = missing ? "The template you specified " + TemplateName +
                                         " does not currently exist.\n"
                                         "If you choose 'OK', a new file with this name will be created."
                                   : std::string("Click 'OK' to try to continue, or cancel to abort");
  return screen_.platform().dialogs.MessageBox(text, box_style::kOkCancel + box_style::kExclamation, title) ==
         Answer::kOk;
}

bool TemplateEditor::LoadEvent() {
  if (events_loaded_ < events_.size()) {
    AddTemplateEvent(events_[events_loaded_++]);
    screen_.Text3.SetText("Total Entries = " + std::to_string(entries_.EntryCount()));
    screen_.Text2.SetText("Adding your selection...");
    return true;
  }
  ShowRows();
  screen_.List2.SetTopRow(entries_.EntryCount() - 1);
  ShowTotals();
  return false;
}

void TemplateEditor::AddTemplateEvent(const TemplateEvent& event) {
  const EventKind kind = KindOfEvent(event.EventId);
  if (kind == EventKind::kEmpty) {
    entries_.Append("");
    return;
  }
  if (kind == EventKind::kLocalBreak) {
    entries_.Append(LocalBreakEntry(event.EventId));
    return;
  }
  if (event.EventId.starts_with('>')) {
    entries_.Append(event.EventId);
    return;
  }
  std::string length;
  if (HasDataFile(event)) {
    Files& files = screen_.platform().files;
    if (files.Exists(station_paths::DataFile(event.EventId))) {
      Recording recording(event.EventId);
      SkipAndGoOn(recording.Read(files));
      length = recording.value(Field::kLength);
      first_label_ = recording.value(Field::kFirstLabel);
      second_label_ = recording.value(Field::kSecondLabel);
    } else {
      TellMissingData(event.EventId);
      first_label_ = "EMPTY!";
      second_label_ = "EMPTY!";
    }
  }
  entries_.Append(RecordingEntry(event.EventId, first_label_, second_label_, length));
  entries_.AddSeconds(NumericValue(length));
}

/// One box for each, with no way to stop them: the operator is to see what is gone.
void TemplateEditor::TellMissingData(const std::string& id) {
  screen_.platform().dialogs.MessageBox(
      "A file contained in this template may have been deleted.\n"
      "Please review the template to make sure all entries are still\n"
      "valid.  [Look in list for Entries containing 'EMPTY!']",
      box_style::kOk + box_style::kCritical, id + ".DAT is Missing");
}

void TemplateEditor::SaveOrPlay() {
  if (PlayMode == 1) {
    Play();
  } else {
    Save();
  }
}

bool TemplateEditor::Save() {
  if (Inserting == 1) {
    Warn("Can't Save while Inserting", "Can't Save until you replace the >>OPEN<< event ");
    return false;
  }
  const Platform& platform = screen_.platform();
  if (QuitAfterSave != 1) {
    const Answer answer = platform.dialogs.MessageBox("Are you Sure you Want to\nSave " + TemplateName,
                                                      box_style::kOkCancel, "Save Selected Material?");
    // Cancel moves the focus and does not stop the save: kept, since stations rely on nothing being lost.
    if (answer == Answer::kCancel) screen_.List2.SetFocus();
  }
  const Status written = platform.files.Write(station_paths::TemplateFile(TemplateName),
                                              FormatTemplate(entries_.Events()), Durability::kFlushed);
  if (!written.ok()) {
    QuitAfterSave = 0;
    TellFileFault(platform.dialogs, written, "The template was not saved; it is still on this screen.");
    return false;
  }
  Changed = 0;
  return true;
}

void TemplateEditor::Play() {
  if (Inserting == 1) {
    Warn("Can't Play while Inserting", "Can't Play until you replace the >>OPEN<< event ");
    return;
  }
  const Platform& platform = screen_.platform();
  if (ListIsOnTheAir(platform.screens)) return;
  Status written =
      platform.files.Write(station_paths::kPickList, FormatPickList(entries_.Ids()), Durability::kFlushed);
  // Another item of the menu may have asked for another mode since this screen was opened.
  if (written.ok())
    written = WriteTextSetting(platform.files, station_paths::kPikMode, std::to_string(pik_mode_));
  if (!written.ok()) {
    TellFileFault(platform.dialogs, written, "The list cannot be played.");
    return;
  }
  platform.screens.Open("PickListForm1");
  platform.screens.Unload(screen_);
}

bool TemplateEditor::IsHandedOver() const {
  Files& files = screen_.platform().files;
  if (ReadNumberSetting(files, station_paths::kPikMode) != pik_mode_) return false;
  return PlayMode == 1 ||
         EqualsIgnoringCase(ReadSetting(files, station_paths::kPikName).value_or(std::string()),
                            TemplateName);
}

bool TemplateEditor::MayBeLeft() {
  if (!loaded_) return true;
  Dialogs& dialogs = screen_.platform().dialogs;
  if (PlayMode == 1) {
    return entries_.EntryCount() == 0 ||
           dialogs.MessageBox("The list on this screen has not been played.\nDo you want to give it up?",
                              box_style::kYesNo + box_style::kQuestion, "List Not Played") == Answer::kYes;
  }
  return SavedOrGivenUp();
}

/// The operator's word on changes that are not saved; false keeps the screen.
bool TemplateEditor::SavedOrGivenUp() {
  if (Inserting == 1) {
    Warn("Can't Quit while Inserting", "Can't Quit until you replace the >>OPEN<< event ");
    return false;
  }
  if (Changed == 0) return true;
  const Answer answer = screen_.platform().dialogs.MessageBox(
      "Do you want to save changes before exiting?\nChoose NO to exit without saving.",
      box_style::kYesNoCancel + box_style::kQuestion, "Save Changes?");
  if (answer != Answer::kYes) return answer == Answer::kNo;
  QuitAfterSave = 1;
  return Save();
}

void TemplateEditor::Quit() {
  if (loaded_ && PlayMode == 0 && !SavedOrGivenUp()) return;
  screen_.platform().screens.Unload(screen_);
}

}  // namespace quixair
