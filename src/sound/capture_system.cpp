#include "sound/capture_system.h"

#include <fstream>
#include <iterator>
#include <string>

namespace quixair::sound {
namespace {

/// A recorder on a machine without an input.
class NoInput : public Recorder {
 public:
  void Listen(const RecordingFormat&) override {}
  Status Start(const std::filesystem::path&, const RecordingFormat&, std::chrono::milliseconds) override {
    return RunTimeError::kDeviceUnavailable;
  }
  void Stop() override {}
  bool recording() const override { return false; }
  std::int32_t Position() const override { return 0; }
  Levels TakeLevels() override { return {}; }
  std::int64_t lost_frames() const override { return 0; }
  std::string Trouble() const override { return "There is no sound input."; }
};

}  // namespace

std::unique_ptr<Recorder> CaptureSystem::MakeRecorder() {
  return std::make_unique<NoInput>();
}

std::optional<RecordingFormat> CaptureSystem::SavedFormat() {
  std::ifstream in(format_file_);
  return ParseRecordingFormat(std::string(std::istreambuf_iterator<char>(in), {}));
}

Status CaptureSystem::SaveFormat(const RecordingFormat& format) {
  std::ofstream out(format_file_);
  out << FormatRecordingFormat(format) << '\n';
  return out.flush() ? RunTimeError::kNone : RunTimeError::kPathFileAccess;
}

}  // namespace quixair::sound
