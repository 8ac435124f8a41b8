#pragma once

// The screens that record what an entry screen prepared: RecordITSpot, RecordIt for music, RecordITLiner. Each
// is handed a record, captures its audio, and writes the data file again with the length measured. What is
// written are the values as handed over, whatever the screen shows. A spot's capture ends by itself at its
// preset length; songs and liners wait for the operator.

#include <string>

#include "station/recording/record_boxes.h"
#include "station/recording/recorder_panel.h"
#include "station/screen/screen.h"

namespace quixair {

struct CaptureKind {
  RecordingKind kind;
  const char* screen;
  const char* title;
  const char* entry_screen;
  int empty_lines;  // a capture adds so many to the data file: wanted, programs that read the files know them so
};

class CaptureScreen : public Screen {
 public:
  CaptureScreen(const Platform& platform, const CaptureKind& kind);
  void Load() override;
  /// Another recording was sent here while this stood open: it is taken, unless a capture runs.
  void PrepareAgain(const ScreenOpening& opening) override;
  bool IsBusy() const override { return recorder.capturing(); }
  void CloseWindow() override;
  void ProgramEnds() override;

  RecordBoxes data;
  RecorderPanel recorder{*this};

 protected:
  /// As handed over; lines that were not there are empty.
  const Recording& recording() const { return recording_; }

 private:
  Status WriteDataFile(const std::string& seconds);
  bool Save(const std::string& seconds, Ending ending);
  std::string DataPath() const;
  void Erase();
  void BackToEntry();

  const CaptureKind& kind_;
  Recording recording_{{}, kind_.kind};
};

class RecordITSpot : public CaptureScreen {
 public:
  explicit RecordITSpot(const Platform& platform);
  void Load() override;

  Label Label17{*this, "Label17"};  // "out of 30 Secs."
  Timer Timer2{*this, "Timer2"};    // sees the end of a capture that reached its length

 private:
  void SetLimit();
};

class RecordIt : public CaptureScreen {
 public:
  explicit RecordIt(const Platform& platform);
};

class RecordITLiner : public CaptureScreen {
 public:
  explicit RecordITLiner(const Platform& platform);
};

}  // namespace quixair
