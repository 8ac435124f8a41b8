#pragma once

// The screens on which a recording enters the library: RecordSpot, RecordASong, RecordLiner. The operator names
// it, types its data and is sent on to the capture screen or to the import screen; existing recordings are
// auditioned, edited and recorded anew. EntryScreen is what the three share; EntryKind is what they differ in
// as data, and the classes at the end add what only one of them has.
//
// The data file is written before there is any audio: a new recording is listed from that moment, with the
// length "[New]", and an existing one keeps its audio until the capture overwrites it.

#include <optional>
#include <string>

#include "station/recording/audition.h"
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
  DriveListBox Drive1{*this, "Drive1"};  // of a new recording
  Label Label12{*this, "Label12"};       // the cue beside the id

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

  MediaControl MMControl1{*this, "MMControl1", kAuditionChannel};  // auditions and measures
  Timer Timer1{*this, "Timer1"};                                   // shows how far an audition is

 protected:
  enum class Mode { kNone, kNew, kAudition, kEdit, kImport, kReRecordLast };
  Mode mode() const { return mode_; }

  /// What only one kind has: its controls follow the mode.
  virtual void NewRecordingBegins() {}
  virtual void PresetRead(const std::string& /*seconds*/) {}
  virtual void EnableExtras(bool /*enabled*/) {}
  virtual std::string Preset() const { return {}; }
  /// Before a capture, which overwrites what is left.
  virtual void DeleteOldAudio(const std::string& /*drive*/, const std::string& /*id*/) {}
  virtual void OpeningAudio(bool /*opening*/, const std::string& /*path*/) {}

  /// Where the audio of a recording lies, or would; empty when it was looked for and is nowhere.
  std::string AudioPath(const std::string& drive, const std::string& id) const;

 private:
  void ConnectButtons();
  void ConnectId();
  void ConnectList();
  void EnableChoices(bool enabled);
  void LeaveModes();

  // modes
  void NewRecording();
  void BeginNew(Mode mode);
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

  // audition
  void Audition();
  void Play(const std::string& id);
  void ShowPosition();
  void MeasureAudio(const std::string& id);
  void OpenAudio(const std::string& path);
  std::string Drive() const;

  // drive
  void DriveChosen();
  bool DriveHasFolder(char letter);
  bool MakeAudioFolder(char letter);
  void TellDriveFault(char letter, const Status& fault);

  // writing
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
  std::string drive_;                  // chosen, or the recording's own; empty when neither
};

/// Spots: how long the capture may take is preset.
class RecordSpot : public EntryScreen {
 public:
  explicit RecordSpot(const Platform& platform);

  Frame Frame1{*this, "Frame1", "Length:"};
  OptionButton Option1{Frame1, "Option1", "30"};
  OptionButton Option2{Frame1, "Option2", "60"};
  OptionButton Option3{Frame1, "Option3", "90"};
  TextBox Text6{Frame1, "Text6"};
  Label Label10{Frame1, "Label10", "Sec."};
  CheckBox Check1{Frame1, "Check1", "UserStop"};

 protected:
  void NewRecordingBegins() override;
  void PresetRead(const std::string& seconds) override;
  void EnableExtras(bool enabled) override;
  std::string Preset() const override;

 private:
  void TakeTyped();

  std::string preset_;  // "30", "60", "90", what was typed, or empty: the operator stops the capture
};

/// Songs: their audio may be .mp3.
class RecordASong : public EntryScreen {
 public:
  explicit RecordASong(const Platform& platform);

  TextBox Text6{*this, "Text6", TextBox::Use::kShow};  // "wait..." while an .mp3 is opened

 protected:
  void DeleteOldAudio(const std::string& drive, const std::string& id) override;
  void OpeningAudio(bool opening, const std::string& path) override;
};

class RecordLiner : public EntryScreen {
 public:
  explicit RecordLiner(const Platform& platform);

 protected:
  void DeleteOldAudio(const std::string& drive, const std::string& id) override;
};

}  // namespace quixair
