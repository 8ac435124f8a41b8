#pragma once

// The screens on which a recording enters the library: RecordSpot, RecordASong, RecordLiner. The operator names
// it, types its data and is sent on to the capture screen or to the import screen; existing recordings are
// auditioned, edited and recorded anew. EntryScreen is what the three share; EntryKind is what they differ in
// as data, and their own classes add what only one of them has.
//
// The data file is written before there is any audio: a new recording is listed from that moment, with the
// length "[New]", and an existing one keeps its audio until the capture overwrites it.

#include <optional>
#include <string>

#include "station/recording/audio_drive.h"
#include "station/recording/entry_audition.h"
#include "station/recording/entry_kind.h"
#include "station/recording/record_boxes.h"
#include "station/recording/record_faults.h"
#include "station/screen/screen.h"

namespace quixair {

class EntryScreen : public Screen {
 public:
  EntryScreen(const Platform& platform, const EntryKind& kind);
  void Load() override;
  void CloseWindow() override;

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // hints
  Label Label11{*this, "Label11"};                     // over the list
  FileListBox File1{*this, "File1"};                   // the recordings there are
  RecordBoxes data;
  AudioDrive drive{*this, Text1};
  Label Label12{*this, "Label12"};  // the cue beside the id

  Button Command1{*this, "Command1", "&New Recording"};
  Button Command2{*this, "Command2", "&Audition"};
  Button Command3{*this, "Command3", "&Erase"};
  Button Command4{*this, "Command4", "Edit &Data"};
  Button Command5{*this, "Command5", "&Import File"};
  Button Command6{*this, "Command6", "Re-Record &Last"};
  Button Command7{*this, "Command7", "&Quit"};
  Button Command8{*this, "Command8", "&Restart"};
  Button Command9{*this, "Command9", "&Record Now"};
  Button OLE1{*this, "OLE1", "&Volume"};  // the host's mixer

  EntryAudition audition;

 protected:
  /// What only one kind has: its controls follow the mode.
  virtual void NewRecordingBegins() {}
  virtual void PresetRead(const std::string& /*seconds*/) {}
  virtual void EnableExtras(bool /*enabled*/) {}
  virtual std::string Preset() const { return {}; }
  /// Before a capture, which overwrites what is left.
  virtual void DeleteOldAudio(const std::string& /*letter*/, const std::string& /*id*/) {}

 private:
  enum class Mode { kNone, kNew, kAudition, kEdit, kImport, kReRecordLast };

  void ConnectButtons();
  void ConnectId();
  void ConnectList();
  void EnableChoices(bool enabled);
  void LeaveModes();

  void BeginNew(Mode mode);
  void Audition();
  void Play(const std::string& id);
  void EditData();
  void ImportFile();
  void ReRecordLast();
  void RefuseLast(const std::string& why);
  void TakeFromList();
  void IdLeft();
  void Take(const std::string& id);
  /// The recording becomes the one on the screen; a fault but 53, file not found, has been told.
  RunTimeError ShowRecording(const std::string& id);
  void ShowExisting(const Recording& recording);
  void AskBeforeImport();
  void GoToImport(const std::string& id);

  void RecordNow();
  Recording Gathered() const;
  Status Write(const Recording& recording);
  void GoToCapture(const std::string& id);
  void EnableFields(bool enabled);
  /// The mode is over, and Restart the way on.
  void TellNotRead(const Status& fault, const std::string& missing, AbnormalFault abnormal);
  /// The mode goes on with all that was typed, so that it can be tried again.
  void TellNotWritten(const Status& fault, const std::string& id);

  const EntryKind& kind_;
  const std::string letter_{LetterOf(kind_.kind)};
  Mode mode_ = Mode::kNone;
  std::optional<Recording> existing_;  // the one on the screen, as its data file was
  bool new_id_ = false;                // the typed id names no recording
  std::string looked_up_;              // what was typed when the id was last looked up
};

}  // namespace quixair
