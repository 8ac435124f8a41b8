#pragma once

// AutoTime and RecordTimes, the time announcements: one recording for each minute of a twelve-hour clock,
// C:\QXTIME\T<hhmm>.WAV. They have no data file, the name says all. AutoTime picks the minute and lists what
// there is; RecordTimes records one.

#include <string>

#include "station/recording/recorder_panel.h"
#include "station/screen/screen.h"

namespace quixair {

class AutoTime : public Screen {
 public:
  explicit AutoTime(const Platform& platform);
  void Load() override;
  void CloseWindow() override;

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // hints
  Label Label1{*this, "Label1", "Hour:"};
  ListBox List1{*this, "List1"};
  Label Label2{*this, "Label2", "Min:"};
  ListBox List2{*this, "List2"};
  Label Label3{*this, "Label3", "Existing:"};
  FileListBox File1{*this, "File1"};
  Label Label4{*this, "Label4"};  // the name of the recording
  Button Command1{*this, "Command1", "&Record"};
  Button Command2{*this, "Command2", "&Quit"};
  Button Command3{*this, "Command3", "&Audition"};
  Button Command4{*this, "Command4", "&Done"};
  MediaControl MMControl1;

 private:
  void ShowName(const std::string& name);
  void FormName();
  void TakeFromList();
  void Record();
  void Audition();
  void Play();
  void StopPlaying();
  void EnableChoices(bool enabled);

  std::string name_;
  bool auditioning_ = false;
};

class RecordTimes : public Screen {
 public:
  explicit RecordTimes(const Platform& platform);
  void Load() override;
  /// Another announcement was sent here while this stood open.
  void PrepareAgain(const ScreenOpening& opening) override;
  bool IsBusy() const override { return recorder.capturing(); }
  void CloseWindow() override;

  TextBox Text2{*this, "Text2", TextBox::Use::kShow};  // the name of the file
  Label Label4{*this, "Label4"};                       // hour and minute
  RecorderPanel recorder{*this};

 private:
  void Erase();
  void BackToChoice();
};

}  // namespace quixair
