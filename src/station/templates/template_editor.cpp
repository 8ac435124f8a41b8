#include "station/templates/template_editor.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"
#include "station/templates/build_template1.h"

namespace quixair {
namespace {

constexpr int kRowsAboveOpen = 6;
constexpr int kRowsAboveCut = 5;
constexpr const char* kBanner = "Quixair Template Editor";
constexpr const char* kAdded = "Your selection has been added...";

std::string FourDigits(int number) {
  std::array<char, 16> text{};
  const int length = std::snprintf(text.data(), text.size(), "%04d", number);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

TemplateEditor::TemplateEditor(BuildTemplate1& screen) : screen_(screen) {
  ConnectLists();
  ConnectOperations();
  ConnectLocalBreak();
  ConnectRange();
}

void TemplateEditor::ConnectLists() {
  const auto connect = [this](ListBox& list, const EditorList& library) {
    list.on_click = [this] {
      screen_.Text3.SetText("Double Click or Press Enter to add a selection to the list above...");
    };
    list.on_double_click = [this, &list, &library] { AddFromList(library, list.selected_index()); };
    list.on_enter = list.on_double_click;
  };
  connect(screen_.List1, screen_.music);
  connect(screen_.List3, screen_.spots);
  connect(screen_.List4, screen_.liners);
  screen_.List2.on_double_click = [this] { EntryDoubleClicked(); };
  screen_.List2.on_enter = [this] { EntryDoubleClicked(); };
}

void TemplateEditor::ConnectOperations() {
  screen_.Command1.on_click = [this] { SaveOrPlay(); };
  screen_.Command2.on_click = [this] { Insert(); };
  screen_.Command3.on_click = [this] { Cut(); };
  screen_.Command4.on_click = [this] { AddCode(kPauseEntry, "A PAUSE replaced the >>OPEN<<..."); };
  screen_.Command5.on_click = [this] { AddCode(kTimeEntry, "A TIME replaced the >>OPEN<<..."); };
  screen_.Command6.on_click = [this] { ShowManual(true); };
  screen_.Command15.on_click = [this] { ShowManual(false); };
  screen_.Command7.on_click = [this] { Clear(); };
  screen_.Command9.on_click = [this] { Quit(); };
  screen_.Text8.on_enter = [this] { AddManual(); };
}

void TemplateEditor::ConnectLocalBreak() {
  screen_.localbreak.on_click = [this] { OpenLocalBreak(); };
  screen_.Command16.on_click = [this] { AcceptLocalBreak(); };
  screen_.Command17.on_click = [this] { screen_.Frame2.Hide(); };
  screen_.List7.on_click = [this] { ComposeTime(); };
  screen_.List8.on_click = [this] { ComposeTime(); };
  screen_.Option1.on_click = [this] { ComposeTime(); };
  screen_.Option2.on_click = [this] { ComposeTime(); };
}

void TemplateEditor::ConnectRange() {
  screen_.Command13.on_click = [this] {
    screen_.Frame1.Show();
    screen_.Command13.Disable();
  };
  screen_.Command8.on_click = [this] {
    screen_.Frame1.Hide();
    screen_.Command13.Enable();
  };
  screen_.Command14.on_click = [this] { ShowRange(true); };
  for (ListBox* list : {&screen_.List5, &screen_.List6}) {
    const bool is_from = list == &screen_.List5;
    list->on_click = [this, is_from] { ShowRange(is_from); };
    list->on_enter = list->on_click;
  }
}

void TemplateEditor::Prompt(const std::string& text) {
  screen_.Text3.SetBackColor(kYellow);
  screen_.Text3.SetText(text);
}

void TemplateEditor::EndPrompt() {
  screen_.Text3.SetBackColor(std::nullopt);
  screen_.Text3.SetText(kBanner);
}

void TemplateEditor::Warn(const char* title, const char* text) {
  screen_.platform().dialogs.MessageBox(text, box_style::kExclamation, title);
}

void TemplateEditor::ShowRows() {
  screen_.List2.SetRows(entries_.Rows());
}

void TemplateEditor::ShowTotals() {
  screen_.Text1.SetText(TotalTimeText(entries_.TotalSeconds()));
}

/// Full: the new event is about to take the place of the last one.
bool TemplateEditor::TellLimit() {
  if (entries_.EntryCount() < TemplateEntries::kMost) return false;
  screen_.platform().dialogs.MessageBox("The system is configured to accept 1999 maximum entries",
                                        box_style::kCritical, "Maximum Entries Reached");
  return true;
}

void TemplateEditor::AddEntry(std::string entry, double seconds) {
  const bool full = TellLimit();
  entries_.Append(std::move(entry));
  entries_.AddSeconds(seconds);
  if (full) {
    ShowRows();
  } else {
    screen_.List2.AddRow(entries_.Row(entries_.EntryCount()));
  }
  screen_.List2.SetTopRow(entries_.EntryCount() - 1);
  screen_.Text3.SetText("Total Entries = " + std::to_string(entries_.EntryCount()));
}

void TemplateEditor::FillOpen(std::string entry, double seconds, const std::string& said) {
  entries_.Fill(std::move(entry));
  entries_.AddSeconds(seconds);
  ShowRows();
  screen_.List2.SetTopRow(std::max(0, entries_.OpenPosition() - kRowsAboveOpen));
  screen_.List1.Enable();
  Inserting = 0;
  OpenPlaced = 0;
  screen_.Text2.SetText(said);
  EndPrompt();
}

void TemplateEditor::AddFromList(const EditorList& library, int row) {
  Changed = 1;
  if (row < 0) {
    screen_.Text3.SetText("You Pressed <Enter> to Add an Entry, but Haven't Selected an Entry Yet !");
    return;
  }
  const EditorRecording& recording = library.recordings.at(static_cast<std::size_t>(row));
  std::string entry =
      RecordingEntry(recording.RecordingId, recording.first_label, recording.second_label, recording.Length);
  const double seconds = NumericValue(recording.Length);
  if (Inserting == 1) {
    FillOpen(std::move(entry), seconds,
             "The >>OPEN<< at " + std::to_string(entries_.OpenPosition()) + " has been filled...");
  } else {
    AddEntry(std::move(entry), seconds);
    screen_.Text2.SetText(kAdded);
  }
  ShowTotals();
}

void TemplateEditor::AddCode(std::string_view code, const std::string& said_when_filling) {
  if (Inserting == 1) {
    FillOpen(std::string(code), 0, said_when_filling);
    return;
  }
  AddEntry(std::string(code), 0);
  screen_.shown_library().SetFocus();
}

void TemplateEditor::ShowManual(bool show) {
  screen_.Label7.Show(show);
  screen_.Text8.Show(show);
  screen_.Command6.Show(!show);
  screen_.Command15.Show(show);
  if (!show) {
    EndPrompt();
    return;
  }
  screen_.Text3.SetText("Enter a Valid Spot, Music, or Liner I.D. in the Manual Box - Then Press Enter...");
  screen_.Text8.SetFocus();
}

/// The id in the data file, not the typed one, becomes the event.
void TemplateEditor::AddManual() {
  const std::string typed = screen_.Text8.text();
  if (typed.empty()) return;
  Files& files = screen_.platform().files;
  screen_.Text8.SetText("");
  const Result<std::string> content = files.Read(station_paths::DataFile(typed));
  if (content.error() == RunTimeError::kFileNotFound || content.error() == RunTimeError::kBadFileName) return;
  if (!content.ok()) {
    screen_.platform().dialogs.MessageBox("The above error was encountered. \nClick OK to attempt to resume.",
                                          box_style::kExclamation,
                                          "Unexpected Error " + std::to_string(content.status().number()));
    return;
  }
  const std::vector<std::string> fields = ReadLeadingFields(files, typed, 5);
  std::string entry = RecordingEntry(fields[1], fields[3], fields[4], fields[0]);
  const double seconds = NumericValue(fields[0]);
  if (Inserting == 1) {
    FillOpen(std::move(entry), seconds,
             "The >>OPEN<< at " + std::to_string(entries_.OpenPosition()) + " has been filled...");
  } else {
    AddEntry(std::move(entry), seconds);
    screen_.Text2.SetText(kAdded);
  }
  ShowTotals();
}

/// The lists are not emptied first: each press of the button adds all the rows again, as it always has.
void TemplateEditor::OpenLocalBreak() {
  screen_.List1.Enable();
  screen_.List2.Enable();
  for (int hour = 1; hour <= 12; ++hour) screen_.List7.AddRow(FourDigits(hour).substr(2));
  for (int minute = 0; minute <= 59; ++minute) screen_.List8.AddRow(FourDigits(minute).substr(2));
  screen_.Frame2.Show();
  screen_.List7.SetFocus();
}

void TemplateEditor::ComposeTime() {
  const std::string half = screen_.Option1.selected() ? "AM" : screen_.Option2.selected() ? "PM" : "";
  screen_.Text9.SetText(screen_.List7.selected_text() + ':' + screen_.List8.selected_text() + ' ' + half);
}

void TemplateEditor::AcceptLocalBreak() {
  if (screen_.List7.selected_index() < 0 || screen_.List8.selected_index() < 0) {
    Prompt("Select an Hour, Minute, and AM or PM - Then <ACCEPT>.");
    return;
  }
  if (!screen_.Option1.selected() && !screen_.Option2.selected()) {
    Prompt("You did not select AM or PM.  This is required");
    return;
  }
  const std::string time = screen_.Text9.text();
  if (Inserting == 1) {
    FillOpen(LocalBreakFilling(time), 0,
             "The >>OPEN<< at " + std::to_string(entries_.OpenPosition()) + " has been filled...");
    return;
  }
  AddEntry(LocalBreakEntry(time), 0);
  screen_.Text3.SetBackColor(std::nullopt);
  screen_.Text3.SetText("Local Break Added at Position " + std::to_string(entries_.EntryCount()) + ": " +
                        time + " ****LOCAL BREAK***");
  screen_.Text2.SetText(kAdded);
}

void TemplateEditor::Insert() {
  if (entries_.EntryCount() >= TemplateEntries::kMost) {
    Warn("Maximum Entries Reached", "You Can't Insert Until Deleting an Existing Entry");
  } else if (Inserting == 1) {
    Warn("Can't Insert Now", "Can't insert until the current >>OPEN<< event is filled");
  } else if (screen_.List2.row_count() < 2) {
    Warn("Can't Insert Now", "Not enough entries to do an insert!");
  } else {
    Inserting = 1;
    CutArmed = 0;
    screen_.List1.Disable();
    Prompt("Double Click Point in Template Entries List at which to Insert");
    screen_.List2.SetFocus();
  }
}

void TemplateEditor::Cut() {
  if (Inserting == 1) {
    Warn("Can't cut while Inserting", "Can't cut until you replace the >>OPEN<< event ");
    return;
  }
  if (entries_.EntryCount() < 1) {
    Warn("Too Few Entries",
         "Too  few entries to do cutting!  You can only \ncut previously selected entries in the top box...");
    return;
  }
  CutArmed = 1;
  Prompt("Double-Click An Item from the Entries List To Cut, <Esc> to cancel request");
  screen_.List1.Disable();
  screen_.List2.SetFocus();
}

void TemplateEditor::EntryDoubleClicked() {
  if (OpenPlaced == 1) {
    Warn("Wrong List", "You can't select a file from this list");
    return;
  }
  const int row = screen_.List2.selected_index();
  if (row < 0) return;  // and a cut stays armed
  if (Inserting == 1) {
    PlaceOpen(row);
  } else if (CutArmed == 1) {
    CutRow(row);
  }
}

void TemplateEditor::PlaceOpen(int row) {
  OpenPlaced = 1;
  entries_.Open(row + 1);
  Prompt("Now, Select an entry for Position " + std::to_string(row + 1));
  screen_.Text2.SetText("Select item for open event...");
  ShowRows();
  if (row + 1 > kRowsAboveOpen) screen_.List2.SetTopRow(row + 1 - kRowsAboveOpen);
  screen_.List1.Enable();
}

void TemplateEditor::CutRow(int row) {
  const double seconds = entries_.Cut(row + 1);
  ShowTotals();
  ShowRows();
  if (row > kRowsAboveCut) screen_.List2.SetTopRow(row - kRowsAboveCut);
  CutArmed = 0;
  screen_.List1.Enable();
  EndPrompt();
  screen_.Text3.SetText(ShortestSeconds(static_cast<long>(seconds * 1000 + 0.5)) + " Seconds cut");
  screen_.Text2.SetText("Item " + std::to_string(row + 1) + " was successfully removed...");
}

void TemplateEditor::Clear() {
  Dialogs& dialogs = screen_.platform().dialogs;
  constexpr int kStyle = box_style::kOkCancel + box_style::kExclamation;
  if (dialogs.MessageBox("Do you really want to clear all contents of this file?\nAny changes will be lost!",
                         kStyle, "Clear This File?") != Answer::kOk) {
    return;
  }
  if (dialogs.MessageBox(
          "Clearing the file will destroy any changes you \nhave made since the last save.  Do you \n"
          "really want to clear all entries now?",
          kStyle, "Last Chance!") != Answer::kOk) {
    return;
  }
  entries_.Clear();
  Inserting = 0;
  OpenPlaced = 0;
  CutArmed = 0;
  screen_.List1.Enable();
  screen_.List2.Clear();
  EndPrompt();
  screen_.shown_library().SetFocus();
}

/// Event numbers are compared as texts, so that "100" comes before "99": known, and kept.
void TemplateEditor::ShowRange(bool from_list_asked) {
  ListBox& from = screen_.List5;
  ListBox& to = screen_.List6;
  screen_.Text3.SetText("Range Calculator:   Click or Press <Enter> to Choose an Event");
  if (to.selected_index() < 0) {
    screen_.Text3.SetText("Range Calculator:   Now, select an ending event Number from the 'To' Box");
    return;
  }
  if (from.selected_index() < 0) return;
  const int count = entries_.EntryCount();
  ListBox& asked = from_list_asked ? from : to;
  if (WholeValue(asked.selected_text()) > count) asked.Select(count - 1);
  if (std::max(WholeValue(from.selected_text()), WholeValue(to.selected_text())) > count) return;
  const bool in_order = from.selected_text() <= to.selected_text();
  const int first = WholeValue(in_order ? from.selected_text() : to.selected_text());
  const int last = WholeValue(in_order ? to.selected_text() : from.selected_text());
  const std::string minutes = FixedDecimals(entries_.RangeSeconds(first, last) / 60, 1);
  screen_.Text5.SetText(FixedDecimals(entries_.RangeSeconds(first, last), 1) + "  Seconds");
  screen_.Text6.SetText(minutes + "  Minutes");
  screen_.Text7.SetText(FixedDecimals(NumericValue(minutes) / 60, 1) + "  Hours");
}

}  // namespace quixair
