#pragma once

// A recorder on the machine's input. Three threads meet here: the device's hands frames over and never waits;
// a worker opens and watches the device and writes the file; the user interface asks for a capture and looks
// at how it goes. What they share beside the ring are atomics and, between worker and user interface, one
// mutex that is never held while the device or the disk is busy.

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "sound/input_driver.h"
#include "sound/sample_ring.h"
#include "sound/wave_writer.h"
#include "station/platform/clock.h"
#include "station/platform/recorder.h"

namespace quixair::sound {

/// What the worker and the device see of a recorder. Shared with the worker, which a hung sound server may
/// hold beyond the recorder's end.
class RecorderCore final : public InputSink {
 public:
  explicit RecorderCore(std::shared_ptr<InputDriver> driver);

  void Take(std::span<const StereoFrame> frames) override;

  /// The worker's thread, until Leave.
  void Work();

  // The user interface's side.
  void Listen(const RecordingFormat& format);
  Status Start(const std::filesystem::path& file, const RecordingFormat& format,
               std::chrono::milliseconds limit);
  void Stop();
  void Leave();
  /// False when the worker has not left after that time.
  bool LeftWithin(std::chrono::milliseconds time);

  bool recording() const { return recording_; }
  std::int32_t Position() const;
  Levels TakeLevels();
  std::int64_t lost_frames() const { return lost_; }
  std::string Trouble() const;

 private:
  enum class Fault { kNone, kNoInput, kInputLost, kDiskFull, kFileLost };
  struct Request {
    std::filesystem::path file;
    RecordingFormat format;
    std::int64_t limit_frames = 0;
  };

  // the worker's side
  void Step();
  void KeepInput();
  void OpenInput(int rate);
  void TakeRequests();
  void Begin(const Request& request);
  void Drain();
  void End(Fault fault);
  bool InputDied(SteadyTime now);

  std::shared_ptr<InputDriver> driver_;
  SampleRing ring_;
  std::atomic<float> peak_left_ = 0;
  std::atomic<float> peak_right_ = 0;
  std::atomic<std::uint64_t> taken_ = 0;  // frames that the device has handed over
  std::atomic<std::int64_t> lost_ = 0;
  std::atomic<bool> recording_ = false;
  std::atomic<std::int64_t> written_ = 0;
  std::atomic<int> rate_ = 44100;  // of the present or latest capture
  std::atomic<Fault> fault_ = Fault::kNone;

  std::mutex mutex_;
  std::condition_variable changed_;
  // under the mutex
  std::optional<int> wanted_rate_;  // the input is wanted, at this rate
  std::optional<Request> request_;
  std::optional<Status> answer_;
  bool start_waits_ = false;
  bool stop_wanted_ = false;
  bool leaving_ = false;
  bool left_ = false;

  // the worker's own
  std::unique_ptr<InputDevice> input_;
  int input_rate_ = 0;
  SteadyTime next_try_{};
  SteadyTime last_heard_{};
  std::uint64_t heard_ = 0;
  std::uint64_t taken_at_opening_ = 0;
  WaveWriter writer_;
  std::int64_t limit_frames_ = 0;
  SteadyTime next_update_{};
};

class InputRecorder : public Recorder {
 public:
  explicit InputRecorder(std::shared_ptr<InputDriver> driver);
  ~InputRecorder() override;

  void Listen(const RecordingFormat& format) override { core_->Listen(format); }
  Status Start(const std::filesystem::path& file, const RecordingFormat& format,
               std::chrono::milliseconds limit) override {
    return core_->Start(file, format, limit);
  }
  void Stop() override { core_->Stop(); }
  bool recording() const override { return core_->recording(); }
  std::int32_t Position() const override { return core_->Position(); }
  Levels TakeLevels() override { return core_->TakeLevels(); }
  std::int64_t lost_frames() const override { return core_->lost_frames(); }
  std::string Trouble() const override { return core_->Trouble(); }

 private:
  std::shared_ptr<RecorderCore> core_;
  std::thread worker_;
};

}  // namespace quixair::sound
