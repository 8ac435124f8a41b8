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
constexpr const char* kChoosePlace = "Double Click Point in Template Entries List at which to Insert";

std::string FourDigits(int number) {
  std::array<char, 16> text{};
  const int length = std::snprintf(text.data(), text.size(), "%04d", number);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

TemplateEditor::TemplateEditor(BuildTemplate1& screen) : EventListEditor(screen), screen_(screen) {
  ConnectOperations();
  ConnectLocalBreak();
  ConnectRange();
}

void TemplateEditor::ConnectOperations() {
  screen_.Command1.on_click = [this] { SaveOrPlay(); };
  screen_.Command2.on_click = [this] { Insert(); };
  screen_.Command4.on_click = [this] { AddCode(kPauseEntry, "A PAUSE replaced the >>OPEN<<..."); };
  screen_.Command5.on_click = [this] { AddCode(kTimeEntry, "A TIME replaced the >>OPEN<<..."); };
  screen_.Command7.on_click = [this] { Clear(); };
}

void TemplateEditor::ConnectLocalBreak() {
  screen_.localbreak.on_click = [this] { OpenLocalBreak(); };
  screen_.Command16.on_click = [this] { AcceptLocalBreak(); };
  screen_.Command17.on_click = [this] {
    screen_.Frame2.Hide();
    if (!Waits()) EndPrompt();
    screen_.SetRestingFocus();
  };
  screen_.List7.on_click = [this] { ComposeTime(); };
  screen_.List8.on_click = [this] { ComposeTime(); };
  screen_.Option1.on_click = [this] { ComposeTime(); };
  screen_.Option2.on_click = [this] { ComposeTime(); };
}

void TemplateEditor::ConnectRange() {
  screen_.Command13.on_click = [this] {
    screen_.Frame1.Show();
    screen_.Command13.Disable();
    screen_.List5.SetFocus();  // else it would go to the button beside, which clears the file
  };
  screen_.Command8.on_click = [this] {
    screen_.Frame1.Hide();
    screen_.Command13.Enable();
    screen_.SetRestingFocus();
  };
  screen_.Command14.on_click = [this] { ShowRange(true); };
  for (ListBox* list : {&screen_.List5, &screen_.List6}) {
    const bool is_from = list == &screen_.List5;
    list->on_click = [this, is_from] { ShowRange(is_from); };
    list->on_enter = list->on_click;
  }
}

void TemplateEditor::FillOpen(std::string entry, double seconds, const std::string& said) {
  if (!entries_.HasPlace()) return Prompt(kChoosePlace);
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

std::string TemplateEditor::OpenFilled() const {
  return "The >>OPEN<< at " + std::to_string(entries_.OpenPosition()) + " has been filled...";
}

void TemplateEditor::AddFromList(const EditorList& library, int row) {
  Changed = 1;  // by the lists alone, and before anything is looked at
  EventListEditor::AddFromList(library, row);
  screen_.SetRestingFocus();
}

void TemplateEditor::Take(std::string entry, double seconds) {
  if (Inserting == 1) {
    FillOpen(std::move(entry), seconds, OpenFilled());
  } else {
    EventListEditor::Take(std::move(entry), seconds);
  }
}

void TemplateEditor::AddCode(std::string_view code, const std::string& said_when_filling) {
  if (Inserting == 1) {
    FillOpen(std::string(code), 0, said_when_filling);
    return;
  }
  AddEntry(std::string(code), 0);
  screen_.SetRestingFocus();
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
    FillOpen(LocalBreakFilling(time), 0, OpenFilled());
    return;
  }
  AddEntry(LocalBreakEntry(time), 0);
  Say("Local Break Added at Position " + std::to_string(entries_.EntryCount()) + ": " + time +
      " ****LOCAL BREAK***");
  screen_.Text2.SetText("Your selection has been added...");
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
    Prompt(kChoosePlace);
    screen_.List2.SetFocus();
  }
}

void TemplateEditor::Cut() {
  if (Inserting == 1) {
    Warn("Can't cut while Inserting", "Can't cut until you replace the >>OPEN<< event ");
  } else {
    EventListEditor::Cut();
  }
}

void TemplateEditor::EntryDoubleClicked() {
  if (OpenPlaced == 1) {
    Warn("Wrong List", "You can't select a file from this list");
  } else if (Inserting == 0) {
    EventListEditor::EntryDoubleClicked();
  } else if (const int row = screen_.List2.selected_index(); row >= 0) {
    PlaceOpen(row);
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
  Inserting = 0;
  OpenPlaced = 0;
  ClearEntries();
}

/// Event numbers are compared as texts, so that "100" comes before "99": known, and kept.
void TemplateEditor::ShowRange(bool from_list_asked) {
  ListBox& from = screen_.List5;
  ListBox& to = screen_.List6;
  Say("Range Calculator:   Click or Press <Enter> to Choose an Event");
  if (to.selected_index() < 0) {
    Say("Range Calculator:   Now, select an ending event Number from the 'To' Box");
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
  if (first > last) return;  // no event is walked, and the figures stay
  const std::string minutes = FixedDecimals(entries_.RangeSeconds(first, last) / 60, 1);
  screen_.Text5.SetText(FixedDecimals(entries_.RangeSeconds(first, last), 1) + "  Seconds");
  screen_.Text6.SetText(minutes + "  Minutes");
  screen_.Text7.SetText(FixedDecimals(NumericValue(minutes) / 60, 1) + "  Hours");
}

}  // namespace quixair
