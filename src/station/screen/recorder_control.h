#pragma once

// The recorder as a control of a screen: it turns what a recorder does into events of the screen, and keeps
// the format that is in force. It looks at the recorder ten times a second.

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "station/platform/recorder.h"
#include "station/screen/controls.h"

namespace quixair {

class WaveRecorder : public Control {
 public:
  WaveRecorder(ControlOwner& owner, std::string name);

  /// The station's path of the file of the next capture.
  void SetFileName(std::string path) { file_name_ = std::move(path); }
  const std::string& file_name() const { return file_name_; }
  void SetMaxRecordTime(std::chrono::milliseconds limit) { max_record_time_ = limit; }
  std::chrono::milliseconds max_record_time() const { return max_record_time_; }

  /// The saved format comes into force; without one the present stays.
  void LoadFormat();
  Status SaveFormat();
  const RecordingFormat& format() const { return format_; }
  /// Lets the operator choose; what was chosen is in force until a saved format is loaded.
  void ChooseFormat();

  /// Opens the input for the meters.
  void Listen() { recorder_->Listen(format_); }
  /// 68 no input, 71 or 76 no such drive or folder, and what making the file comes to.
  Status Record();
  /// Harmless when no capture runs.
  void Stop();

  /// The screen is going: the capture ends and no event comes any more.
  void Leave();

  bool capturing() const { return recorder_->recording(); }
  std::int32_t Position() const { return recorder_->Position(); }
  std::int32_t RecordedLength() const { return recorder_->Position(); }
  Levels TakeLevels() { return recorder_->TakeLevels(); }
  std::string Trouble() const { return recorder_->Trouble(); }

  std::function<void()> on_started;
  std::function<void()> on_stopped;
  std::function<void()> on_progress;  // while a capture runs, and each time that Trouble may have changed

 private:
  void Look();

  std::unique_ptr<Recorder> recorder_;
  std::unique_ptr<TimerShots> look_;
  std::string file_name_;
  std::chrono::milliseconds max_record_time_{300'000};
  RecordingFormat format_;
  bool told_capturing_ = false;  // what the screen was last told
};

}  // namespace quixair
