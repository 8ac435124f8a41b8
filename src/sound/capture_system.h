#pragma once

// Recording from the system's default input: makes the recorders and keeps the format that the operator saved.

#include <filesystem>

#include "sound/input_driver.h"
#include "station/platform/recorder.h"

namespace quixair::sound {

class CaptureSystem : public Capture {
 public:
  /// `format_file` keeps the saved format, in the user's configuration.
  CaptureSystem(std::unique_ptr<InputDriver> driver, std::filesystem::path format_file)
      : driver_(std::move(driver)), format_file_(std::move(format_file)) {}
  std::unique_ptr<Recorder> MakeRecorder() override;
  std::optional<RecordingFormat> SavedFormat() override;
  Status SaveFormat(const RecordingFormat& format) override;

 private:
  std::shared_ptr<InputDriver> driver_;
  std::filesystem::path format_file_;
};

}  // namespace quixair::sound
