#include "simulation/simulated_capture.h"

#include <algorithm>
#include <fstream>

#include "simulation/silent_wave.h"

namespace quixair::simulation {

using std::chrono::milliseconds;

class SimulatedCapture::SilentRecorder : public Recorder {
 public:
  explicit SilentRecorder(SimulatedCapture& capture)
      : capture_(capture), end_(capture.time_.MakeTimer([this] { Stop(); })) {
    capture_.recorders_.push_back(this);
  }
  ~SilentRecorder() override {
    SilentRecorder::Stop();
    std::erase(capture_.recorders_, this);
  }

  void Listen(const RecordingFormat&) override {}

  Status Start(const std::filesystem::path& file, const RecordingFormat& format,
               milliseconds limit) override {
    Stop();
    if (!capture_.input_there) return RunTimeError::kDeviceUnavailable;
    file_ = file;
    format_ = format;
    limit_ = limit;
    started_ = capture_.time_.Steady();
    recording_ = true;
    end_->Start(limit);
    if (!Write(0)) return RunTimeError::kPathFileAccess;
    if (capture_.on_capture) capture_.on_capture(file_.filename().string(), true, 0);
    return {};
  }

  void Stop() override {
    if (!recording_) return;
    length_ = SilentRecorder::Position();
    recording_ = false;
    end_->Stop();
    Write(length_);
    if (capture_.on_capture) capture_.on_capture(file_.filename().string(), false, length_);
  }

  bool recording() const override { return recording_; }
  std::int32_t Position() const override {
    if (!recording_) return length_;
    const auto passed = std::chrono::duration_cast<milliseconds>(capture_.time_.Steady() - started_);
    return static_cast<std::int32_t>(std::min(passed, limit_).count());
  }
  Levels TakeLevels() override { return {}; }
  std::int64_t lost_frames() const override { return 0; }
  std::string Trouble() const override { return capture_.trouble; }

 private:
  bool Write(std::int32_t length) {
    std::ofstream out(file_, std::ios::binary);
    out << SilentWave(format_, length);
    recording_ = recording_ && out.good();
    return out.good();
  }

  SimulatedCapture& capture_;
  std::unique_ptr<TimerShots> end_;
  std::filesystem::path file_;
  RecordingFormat format_;
  milliseconds limit_{0};
  SteadyTime started_{};
  std::int32_t length_ = 0;
  bool recording_ = false;
};

std::unique_ptr<Recorder> SimulatedCapture::MakeRecorder() {
  return std::make_unique<SilentRecorder>(*this);
}

void SimulatedCapture::BreakOff() {
  for (SilentRecorder* recorder : recorders_) recorder->Stop();
}

Status SimulatedCapture::SaveFormat(const RecordingFormat& format) {
  if (save_fault.ok()) saved_ = format;
  return save_fault;
}

}  // namespace quixair::simulation
