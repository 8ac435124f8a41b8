#pragma once

// What the operator does on BuildTemplate1 beyond adding and cutting: opens a place and fills it, adds pauses,
// times and local breaks, clears, adds up, saves, plays, quits.

#include <string>

#include "station/templates/event_list_editor.h"
#include "station/templates/template_file.h"

namespace quixair {

class BuildTemplate1;

class TemplateEditor : public EventListEditor {
 public:
  explicit TemplateEditor(BuildTemplate1& screen);

  /// 0 edits a Pick-List template, 1 Immediate, 2 Simple-Sat, 3 the rotation file, 4 On-Air Assist; 1 and 4 play.
  void SetMode(int pik_mode);
  bool plays() const { return PlayMode == 1; }
  bool assists() const { return assists_; }
  /// Reads the template in use, the first time. False when the operator would rather not go on.
  bool OpenTemplate();
  /// Makes an entry of its next event; false when there is none left, and the entries are shown.
  bool LoadEvent();
  /// Loading has come to its end: from now on quitting asks.
  void SetLoaded() { loaded_ = true; }

  /// Whether what the hand-over files name is what is worked on.
  bool IsHandedOver() const;
  /// Asks what is to become of work that is not saved, or not played.
  bool MayBeLeft();
  void Quit() override;

 private:
  void ConnectOperations();
  void ConnectLocalBreak();
  void ConnectRange();

  // template_editor.cpp
  void AddFromList(const EditorList& library, int row) override;
  void Take(std::string entry, double seconds) override;
  void Cut() override;
  void EntryDoubleClicked() override;
  bool Waits() const override { return Inserting == 1 || EventListEditor::Waits(); }
  /// Nothing is taken before the place is known, but that of the insertion before stands for one.
  void FillOpen(std::string entry, double seconds, const std::string& said);
  std::string OpenFilled() const;
  void AddCode(std::string_view code, const std::string& said_when_filling);
  void ComposeTime();
  void OpenLocalBreak();
  void AcceptLocalBreak();
  void Insert();
  void PlaceOpen(int row);
  void Clear();
  void ShowRange(bool from_list_asked);

  // template_storage.cpp
  bool TellUnreadable(const Status& fault);
  void AddTemplateEvent(const TemplateEvent& event);
  void TellMissingData(const std::string& id);
  void SaveOrPlay();
  bool SavedOrGivenUp();
  bool Save();
  void Play();

  BuildTemplate1& screen_;
  std::string TemplateName;
  std::vector<TemplateEvent> events_;  // of the template in use
  std::size_t events_loaded_ = 0;
  bool template_read_ = false;
  std::string first_label_;  // of the recording read last: a row of no known kind repeats it
  std::string second_label_;
  int Inserting = 0;
  int OpenPlaced = 0;
  int Changed = 0;
  int QuitAfterSave = 0;
  int PlayMode = 0;
  bool assists_ = false;
  int pik_mode_ = 0;
  bool loaded_ = false;
};

}  // namespace quixair
