#include "station/templates/event_list_editor.h"

#include <cmath>

#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {
constexpr int kRowsAboveCut = 5;
}

EventListEditor::EventListEditor(EventListScreen& screen) : screen_(screen) {
  for (EventListScreen::Library& library : screen.libraries()) {
    library.list.on_click = [this] {
      Say("Double Click or Press Enter to add a selection to the list above...");
    };
    library.list.on_double_click = [this, &library] {
      AddFromList(library.files, library.list.selected_index());
    };
    library.list.on_enter = library.list.on_double_click;
  }
  screen.List2.on_double_click = [this] { EntryDoubleClicked(); };
  screen.List2.on_enter = screen.List2.on_double_click;
  screen.Command3.on_click = [this] { Cut(); };
  screen.Command6.on_click = [this] { ShowManual(true); };
  screen.Command15.on_click = [this] { ShowManual(false); };
  screen.Command9.on_click = [this] { Quit(); };
  screen.Text8.on_enter = [this] { AddManual(); };
}

void EventListEditor::Prompt(const std::string& text) {
  prompt_ = text;
  screen_.Text3.SetBackColor(kYellow);
  screen_.Text3.SetText(text);
}

void EventListEditor::EndPrompt() {
  screen_.Text3.SetBackColor(std::nullopt);
  screen_.Text3.SetText(screen_.kind().banner);
}

void EventListEditor::Say(const std::string& text) {
  if (!Waits()) screen_.Text3.SetBackColor(std::nullopt);
  screen_.Text3.SetText(text);
}

void EventListEditor::Warn(const std::string& title, const std::string& text) {
  screen_.platform().dialogs.MessageBox(text, box_style::kExclamation, title);
}

void EventListEditor::ShowRows() {
  screen_.List2.SetRows(entries_.Rows());
}

void EventListEditor::ShowTotals() {
  screen_.Text1.SetText(TotalTimeText(entries_.TotalSeconds()));
}

/// Full: the new event is about to take the place of the last one.
bool EventListEditor::TellLimit() {
  if (entries_.EntryCount() < TemplateEntries::kMost) return false;
  screen_.platform().dialogs.MessageBox("The system is configured to accept 1999 maximum entries",
                                        box_style::kCritical, "Maximum Entries Reached");
  return true;
}

void EventListEditor::AddEntry(std::string entry, double seconds) {
  const bool full = TellLimit();
  entries_.Append(std::move(entry));
  entries_.AddSeconds(seconds);
  if (full) {
    ShowRows();
  } else {
    screen_.List2.AddRow(entries_.Row(entries_.EntryCount()));
  }
  screen_.List2.SetTopRow(entries_.EntryCount() - 1);
  Say("Total Entries = " + std::to_string(entries_.EntryCount()));
}

void EventListEditor::AddFromList(const EditorList& library, int row) {
  if (row < 0) {
    Say("You Pressed <Enter> to Add an Entry, but Haven't Selected an Entry Yet !");
    return;
  }
  TakeRecording(library.recordings().at(static_cast<std::size_t>(row)));
}

void EventListEditor::TakeRecording(const EditorRecording& recording) {
  const bool with_drive = screen_.kind().columns == LibraryColumns::kWithDrive;
  Take(with_drive ? RecordingEntryWithDrive(recording.RecordingId, recording.first_label,
                                            recording.second_label, recording.Length, recording.Drive)
                  : RecordingEntry(recording.RecordingId, recording.first_label, recording.second_label,
                                   recording.Length),
       NumericValue(recording.Length));
  ShowTotals();
}

void EventListEditor::Take(std::string entry, double seconds) {
  AddEntry(std::move(entry), seconds);
  screen_.Text2.SetText("Your selection has been added...");
}

void EventListEditor::ShowManual(bool show) {
  screen_.Label7.Show(show);
  screen_.Text8.Show(show);
  screen_.Command6.Show(!show);
  screen_.Command15.Show(show);
  if (!show) {
    screen_.Command6.Enable();  // what was hidden can be shown again, in each mode
    if (Waits()) return Prompt(prompt_);
    return EndPrompt();
  }
  Say("Enter a Valid Spot, Music, or Liner I.D. in the Manual Box - Then Press Enter...");
  screen_.Text8.SetFocus();
}

/// The id in the data file, not the typed one, becomes the event.
void EventListEditor::AddManual() {
  const std::string typed = screen_.Text8.text();
  if (typed.empty()) return;
  screen_.Text8.SetText("");
  const Result<EditorRecording> recording = ReadEditorRecording(screen_.platform().files, typed);
  if (recording.ok()) {
    TakeRecording(recording.value());
  } else if (recording.error() != RunTimeError::kFileNotFound &&
             recording.error() != RunTimeError::kBadFileName) {
    Warn("Unexpected Error " + std::to_string(recording.status().number()),
         "The above error was encountered. \nClick OK to attempt to resume.");
  }
}

void EventListEditor::Cut() {
  if (entries_.EntryCount() < 1) {
    Warn("Too Few Entries", screen_.kind().too_few_to_cut);
    return;
  }
  CutArmed = 1;
  Prompt("Double-Click An Item from the Entries List To Cut, <Esc> to cancel request");
  screen_.List1.Disable();
  screen_.List2.SetFocus();
}

void EventListEditor::EntryDoubleClicked() {
  const int row = screen_.List2.selected_index();
  if (row >= 0 && CutArmed == 1) CutRow(row);  // without a row it stays armed
}

void EventListEditor::TellStep(const std::string& text) {
  screen_.Text2.SetText(text);
  screen_.Repaint();
}

void EventListEditor::CutRow(int row) {
  const bool last = row + 1 == entries_.EntryCount();
  const double seconds = entries_.Cut(row + 1);
  screen_.Text3.SetText(ShortestSeconds(std::lround(seconds * 1000)) + " Seconds cut");
  ShowTotals();
  if (!last) TellStep("Reindexing... WAIT...");
  ShowRows();
  if (!last) TellStep("Rebuilding... WAIT...");
  if (row > kRowsAboveCut) screen_.List2.SetTopRow(row - kRowsAboveCut);
  CutArmed = 0;
  screen_.List1.Enable();
  EndPrompt();
  screen_.Text2.SetText("Item " + std::to_string(row + 1) + " was successfully removed...");
}

/// The total goes on from the old figure until the screen is reopened: known, and kept.
void EventListEditor::ClearEntries() {
  entries_.Clear();
  CutArmed = 0;
  screen_.List1.Enable();
  screen_.List2.Clear();
  EndPrompt();
  screen_.SetRestingFocus();
}

}  // namespace quixair
