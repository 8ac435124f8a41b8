#include "sound/capture_system.h"

#include "sound/input_recorder.h"
#include "station/host/host_file.h"

namespace quixair::sound {

std::unique_ptr<Recorder> CaptureSystem::MakeRecorder() {
  return std::make_unique<InputRecorder>(driver_);
}

std::optional<RecordingFormat> CaptureSystem::SavedFormat() {
  return ParseRecordingFormat(host_file::ReadAll(format_file_).value_or(std::string()));
}

Status CaptureSystem::SaveFormat(const RecordingFormat& format) {
  return host_file::Replace(format_file_, FormatRecordingFormat(format) + '\n', false);
}

}  // namespace quixair::sound
