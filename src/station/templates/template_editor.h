#pragma once

// What the operator does on BuildTemplate1: adds, opens a place and fills it, cuts, clears, adds up, saves,
// plays, quits. The events themselves are TemplateEntries.

#include <string>

#include "station/platform/run_time_error.h"
#include "station/templates/editor_library.h"
#include "station/templates/template_entries.h"

namespace quixair {

class BuildTemplate1;

class TemplateEditor {
 public:
  explicit TemplateEditor(BuildTemplate1& screen);

  /// 0 edits a Pick-List template, 1 Immediate, 2 Simple-Sat, 3 the rotation file, 4 On-Air Assist; 1 and 4 play.
  void SetMode(int pik_mode);
  bool plays() const { return PlayMode == 1; }
  /// Reads the template in use. False when the operator would rather not go on.
  bool LoadTemplate();
  /// Loading has come to its end: from now on quitting asks.
  void SetLoaded() { loaded_ = true; }

  void ShowManual(bool show);
  void Quit();

 private:
  void ConnectLists();
  void ConnectOperations();
  void ConnectLocalBreak();
  void ConnectRange();

  // template_editor.cpp
  void AddFromList(const EditorList& library, int row);
  void AddEntry(std::string entry, double seconds);
  void FillOpen(std::string entry, double seconds, const std::string& said);
  bool TellLimit();
  void AddCode(std::string_view code, const std::string& said_when_filling);
  void AddManual();
  void ComposeTime();
  void OpenLocalBreak();
  void AcceptLocalBreak();
  void Insert();
  void Cut();
  void EntryDoubleClicked();
  void PlaceOpen(int row);
  void CutRow(int row);
  void Clear();
  void ShowRows();
  void ShowTotals();
  void ShowRange(bool from_list_asked);
  void Prompt(const std::string& text);
  void EndPrompt();
  void Warn(const char* title, const char* text);

  // template_storage.cpp
  void AddTemplateEvent(const TemplateEvent& event);
  void TellMissingData(const std::string& id);
  void SaveOrPlay();
  void Save();
  void Play();

  BuildTemplate1& screen_;
  TemplateEntries entries_;
  std::string TemplateName;
  std::string first_label_;  // of the recording read last: a row of no known kind repeats it
  std::string second_label_;
  int Inserting = 0;
  int OpenPlaced = 0;
  int CutArmed = 0;
  int Changed = 0;
  int QuitAfterSave = 0;
  int PlayMode = 0;
  bool loaded_ = false;
};

}  // namespace quixair
