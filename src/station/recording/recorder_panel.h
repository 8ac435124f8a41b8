#pragma once

// The recorder of a capture screen with its buttons: what the screens that record a library item and the one
// that records a time announcement have in common. The screen says what file is recorded, how long it may
// get, and what is to be done with the finished length.

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "station/screen/recorder_control.h"
#include "station/screen/screen.h"

namespace quixair {

/// Serves as no limit: 10,000 seconds.
inline constexpr std::chrono::milliseconds kNoLimit{10'000'000};

/// How a capture comes to its end.
enum class Ending {
  kByOperator,
  kByItself,     // at its limit, or by a fault of the disk or the input, which is told
  kProgramEnds,  // nobody can answer a box
  kOnceMore,     // it has ended already: its length is saved again, and nothing else is touched
};

class RecorderPanel {
 public:
  explicit RecorderPanel(Screen& screen);
  RecorderPanel(const RecorderPanel&) = delete;
  RecorderPanel& operator=(const RecorderPanel&) = delete;

  TextBox Text6;  // status
  Label SecondsRecorded;
  Label Label5;   // the format in words
  Label PlayPos;  // seconds of an audition
  Label Trouble;  // of the input, or why a capture ended
  Button RecordBtn, StopBtn;
  Button Command1;  // audition
  Button NowExit, CancelButton, changesettingsButton, SaveSettingsButton;
  Button OLE1;  // the host's mixer
  MediaControl MMControl1;
  WaveRecorder MMWaveRecorderX;
  Timer Timer1;  // shows how far an audition is

  /// Where the next capture goes; its drive becomes the drive of the latest capture.
  std::string path;
  std::chrono::milliseconds limit = kNoLimit;
  std::function<void()> on_start;      // before a capture: `limit` can still be set
  std::function<void()> on_recording;  // it has begun
  /// A capture is over: seconds with one decimal. False when what is to be written could not be.
  std::function<bool(const std::string& seconds, Ending ending)> on_saved;

  /// The screen is ready for the first capture.
  void Prepare();
  void Start();
  /// Ends the capture, if one runs, and has what there is saved.
  void Finish(Ending ending);
  bool capturing() const { return MMWaveRecorderX.capturing(); }
  /// Asks whether the recording is to go; the channel lets go of it when it is.
  bool EraseConfirmed(const std::string& name);

 private:
  void Connect();
  void EndCapture();
  void ShowFormat();
  void ShowProgress();
  void Audition();
  void SaveSettings();
  void EnableChoices(bool enabled);

  Screen& screen_;
  bool ending_ = false;  // the capture does not end by itself
};

/// Whether a capture runs on the screen of that name, which is told: nothing can be sent there then.
bool IsCapturing(const Platform& platform, std::string_view screen);

}  // namespace quixair
