#pragma once

// Recording from the system's default input.

#include <filesystem>

#include "station/platform/recorder.h"

namespace quixair::sound {

class CaptureSystem : public Capture {
 public:
  /// `format_file` keeps the saved format, in the user's configuration.
  explicit CaptureSystem(std::filesystem::path format_file) : format_file_(std::move(format_file)) {}
  std::unique_ptr<Recorder> MakeRecorder() override;
  std::optional<RecordingFormat> SavedFormat() override;
  Status SaveFormat(const RecordingFormat& format) override;

 private:
  std::filesystem::path format_file_;
};

}  // namespace quixair::sound
