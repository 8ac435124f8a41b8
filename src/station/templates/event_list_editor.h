#pragma once

// What the operator does alike on the screens that build a list of entries: adds from the library and by the
// manual box, cuts. The entries themselves are TemplateEntries.

#include <string>

#include "station/templates/event_list_screen.h"
#include "station/templates/template_entries.h"

namespace quixair {

class EventListEditor {
 public:
  explicit EventListEditor(EventListScreen& screen);
  virtual ~EventListEditor() = default;
  EventListEditor(const EventListEditor&) = delete;
  EventListEditor& operator=(const EventListEditor&) = delete;

  void ShowManual(bool show);
  virtual void Quit() = 0;

 protected:
  /// A double click or Enter in a library list; -1 when nothing is selected.
  virtual void AddFromList(const EditorList& library, int row);
  /// A recording goes to the end of the entries.
  virtual void Take(std::string entry, double seconds);
  virtual void Cut();
  /// A double click or Enter in the entries: cuts when that was asked for.
  virtual void EntryDoubleClicked();

  /// Adds at the end, or in place of the last one when the list is full.
  void AddEntry(std::string entry, double seconds);
  void ClearEntries();
  void ShowRows();
  void ShowTotals();
  /// What is waited for, in yellow, until EndPrompt; Say shows something else meanwhile or afterwards.
  void Prompt(const std::string& text);
  void EndPrompt();
  void Say(const std::string& text);
  /// An act of the operator was asked for and has not come.
  virtual bool Waits() const { return CutArmed == 1; }
  void Warn(const std::string& title, const std::string& text);

  TemplateEntries entries_;
  int CutArmed = 0;

 private:
  void TakeRecording(const EditorRecording& recording);
  void AddManual();
  void CutRow(int row);
  void TellStep(const std::string& text);
  bool TellLimit();

  EventListScreen& screen_;
  std::string prompt_;
};

}  // namespace quixair
