#pragma once

// How the station records: from the system's default input into a PCM WAV file. The real recorder captures on
// threads of its own and never lets the input wait for the disk; the simulated one records silence in virtual
// time. All functions are called on the user interface thread, and none of them waits for a device for longer
// than a second.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "station/platform/media.h"
#include "station/platform/recording_format.h"
#include "station/platform/run_time_error.h"

namespace quixair {

class Recorder {
 public:
  virtual ~Recorder() = default;  // ends a running capture as Stop does

  /// Opens the input, so that the meters move and Start finds it open. Opening goes on after the call; an
  /// input that is not there is looked for again every second or two.
  virtual void Listen(const RecordingFormat& format) = 0;
  /// Captures into `file`, which is made or, when the input is there, overwritten. After `limit` worth of
  /// samples, not one more, the capture ends by itself. 68 when there is no input: then the file stays as it
  /// was. 61, 70, 75 when the file cannot be made.
  virtual Status Start(const std::filesystem::path& file, const RecordingFormat& format,
                       std::chrono::milliseconds limit) = 0;
  /// Ends the capture; what was captured is in the closed file when it returns. Harmless when none runs.
  virtual void Stop() = 0;

  /// From Start until the end of the capture, by whatever cause; the file is closed when it turns false.
  virtual bool recording() const = 0;
  /// Milliseconds captured so far, and after its end those of the finished file; 0 before the first capture.
  virtual std::int32_t Position() const = 0;
  /// Peaks of the input since the last call.
  virtual Levels TakeLevels() = 0;
  /// Samples that came too fast for the disk and are missing from the present or latest capture.
  virtual std::int64_t lost_frames() const = 0;
  /// What the operator must know, in plain words, or empty: no input, lost samples, why a capture ended
  /// before its time.
  virtual std::string Trouble() const = 0;
};

/// The recorders of the program, and the format that the operator saved for all of them.
class Capture {
 public:
  virtual ~Capture() = default;
  virtual std::unique_ptr<Recorder> MakeRecorder() = 0;

  /// None before the first Save, or when what was saved is of no use.
  virtual std::optional<RecordingFormat> SavedFormat() = 0;
  virtual Status SaveFormat(const RecordingFormat& format) = 0;

  /// The drive that the latest capture of this run went to, or C since the songs' data was edited: what a new
  /// recording is offered. Those screens set it.
  char drive() const { return drive_; }
  void set_drive(char letter) { drive_ = letter; }

 private:
  char drive_ = 'C';
};

}  // namespace quixair
