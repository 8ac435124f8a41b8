#include "sound/input_recorder.h"

#include <algorithm>
#include <cmath>

namespace quixair::sound {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kRingFrames = std::size_t{1} << 19;  // 11 s of a disk that does not answer
constexpr auto kStep = 20ms;
constexpr auto kUpdateInterval = 500ms;  // how old the header of a killed capture may be
constexpr auto kTryInterval = 2s;
constexpr auto kSilentFor = 2s;         // an input that hands nothing over for so long has died
constexpr auto kFirstSoundWithin = 5s;  // an idle sound server takes its time
constexpr auto kStartPatience = 1s;
constexpr auto kStopPatience = 5s;
constexpr auto kEndPatience = 2s;

SteadyTime Now() {
  return std::chrono::steady_clock::now();
}

void RaiseTo(std::atomic<float>& peak, float value) {
  float present = peak.load(std::memory_order_relaxed);
  while (value > present && !peak.compare_exchange_weak(present, value, std::memory_order_relaxed)) {
  }
}

}  // namespace

RecorderCore::RecorderCore(std::shared_ptr<InputDriver> driver)
    : driver_(std::move(driver)), ring_(kRingFrames) {}

void RecorderCore::Take(std::span<const StereoFrame> frames) {
  float left = 0;
  float right = 0;
  for (const StereoFrame& frame : frames) {
    left = std::max(left, std::fabs(Tamed(frame.left)));
    right = std::max(right, std::fabs(Tamed(frame.right)));
  }
  RaiseTo(peak_left_, left);
  RaiseTo(peak_right_, right);
  taken_.fetch_add(frames.size(), std::memory_order_relaxed);
  while (!frames.empty()) {
    const std::span<StereoFrame> room = ring_.Room();
    const std::size_t count = std::min(room.size(), frames.size());
    if (count == 0) {
      if (recording_.load(std::memory_order_relaxed)) lost_ += static_cast<std::int64_t>(frames.size());
      return;
    }
    std::copy_n(frames.begin(), count, room.begin());
    ring_.Commit(count);
    frames = frames.subspan(count);
  }
}

void RecorderCore::Work() {
  for (;;) {
    {
      std::unique_lock lock(mutex_);
      changed_.wait_for(lock, kStep, [this] { return leaving_ || stop_wanted_ || request_.has_value(); });
      if (leaving_) break;
    }
    Step();
  }
  if (writer_.open()) {
    Drain();
    if (writer_.open()) End(Fault::kNone);
  }
  input_.reset();
  const std::scoped_lock lock(mutex_);
  left_ = true;
  changed_.notify_all();
}

void RecorderCore::Step() {
  KeepInput();
  TakeRequests();
  Drain();
  bool stop = false;
  {
    const std::scoped_lock lock(mutex_);
    stop = stop_wanted_;
  }
  if (stop && writer_.open()) End(Fault::kNone);
  if (stop) {
    const std::scoped_lock lock(mutex_);
    stop_wanted_ = false;
    changed_.notify_all();
  }
}

/// The input that is wanted is opened, and looked for again once it has died.
void RecorderCore::KeepInput() {
  std::optional<int> rate;
  bool asked_for = false;
  {
    const std::scoped_lock lock(mutex_);
    rate = wanted_rate_;
    asked_for = request_.has_value();
  }
  const SteadyTime now = Now();
  if (input_ && InputDied(now)) {
    Drain();  // what it handed over before
    if (writer_.open()) End(Fault::kInputLost);
    input_.reset();
    next_try_ = now + kTryInterval;
  }
  if (!rate || writer_.open() || (input_ && input_rate_ == *rate)) return;
  if (asked_for || now >= next_try_) OpenInput(*rate);
}

void RecorderCore::OpenInput(int rate) {
  input_.reset();
  taken_at_opening_ = taken_;
  input_ = driver_->Open(rate, *this);
  input_rate_ = rate;
  last_heard_ = Now();
  next_try_ = last_heard_ + kTryInterval;
  if (!input_) {
    fault_ = Fault::kNoInput;
  } else if (fault_ == Fault::kNoInput) {
    fault_ = Fault::kNone;
  }
}

bool RecorderCore::InputDied(SteadyTime now) {
  const std::uint64_t taken = taken_.load(std::memory_order_relaxed);
  if (taken != heard_) last_heard_ = now;
  heard_ = taken;
  const auto patience = taken == taken_at_opening_ ? kFirstSoundWithin : kSilentFor;
  return !input_->Connected() || now - last_heard_ > patience;
}

void RecorderCore::TakeRequests() {
  std::optional<Request> request;
  {
    const std::scoped_lock lock(mutex_);
    request = std::exchange(request_, std::nullopt);
  }
  if (request) Begin(*request);
}

void RecorderCore::Begin(const Request& request) {
  Status answer = RunTimeError::kDeviceUnavailable;
  if (input_) answer = writer_.Open(request.file, request.format);
  const std::scoped_lock lock(mutex_);
  answer_ = answer;
  changed_.notify_all();
  if (!start_waits_) writer_.Close();  // it took too long: nobody knows of this capture
  if (!writer_.open()) return;
  while (!ring_.Waiting().empty()) ring_.Release(ring_.Waiting().size());  // it was before
  limit_frames_ = request.limit_frames;
  next_update_ = Now() + kUpdateInterval;
  rate_ = request.format.rate;
  written_ = 0;
  lost_ = 0;
  fault_ = Fault::kNone;
  recording_ = true;
}

void RecorderCore::Drain() {
  for (std::span<const StereoFrame> waiting = ring_.Waiting(); !waiting.empty(); waiting = ring_.Waiting()) {
    if (!writer_.open()) {
      ring_.Release(waiting.size());
      continue;
    }
    const auto wanted = static_cast<std::size_t>(limit_frames_ - writer_.frames());
    const std::size_t count = std::min({waiting.size(), wanted, std::size_t{8192}});
    const Status written = writer_.Write(waiting.first(count));
    ring_.Release(count);
    written_ = writer_.frames();
    if (!written.ok()) {
      End(written.error() == RunTimeError::kDiskFull ? Fault::kDiskFull : Fault::kFileLost);
    } else if (writer_.frames() >= limit_frames_) {
      End(Fault::kNone);
    }
  }
  if (writer_.open() && Now() >= next_update_) {
    writer_.Update();
    next_update_ = Now() + kUpdateInterval;
  }
}

void RecorderCore::End(Fault fault) {
  writer_.Close();
  if (fault != Fault::kNone) fault_ = fault;
  recording_ = false;
}

void RecorderCore::Listen(const RecordingFormat& format) {
  const std::scoped_lock lock(mutex_);
  wanted_rate_ = format.rate;
}

Status RecorderCore::Start(const std::filesystem::path& file, const RecordingFormat& format,
                           std::chrono::milliseconds limit) {
  Stop();
  std::unique_lock lock(mutex_);
  wanted_rate_ = format.rate;
  answer_.reset();
  start_waits_ = true;
  request_ = Request{file, format, limit.count() * format.rate / 1000};
  changed_.notify_all();
  changed_.wait_for(lock, kStartPatience, [this] { return answer_.has_value(); });
  start_waits_ = false;
  request_.reset();  // too late for it now
  return answer_.value_or(RunTimeError::kDeviceUnavailable);
}

void RecorderCore::Stop() {
  std::unique_lock lock(mutex_);
  if (!recording_) return;
  stop_wanted_ = true;
  changed_.notify_all();
  changed_.wait_for(lock, kStopPatience, [this] { return !stop_wanted_; });
}

void RecorderCore::Leave() {
  const std::scoped_lock lock(mutex_);
  leaving_ = true;
  changed_.notify_all();
}

bool RecorderCore::LeftWithin(std::chrono::milliseconds time) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, time, [this] { return left_; });
}

std::int32_t RecorderCore::Position() const {
  return static_cast<std::int32_t>(written_ * 1000 / rate_);
}

Levels RecorderCore::TakeLevels() {
  return {peak_left_.exchange(0, std::memory_order_relaxed),
          peak_right_.exchange(0, std::memory_order_relaxed)};
}

std::string RecorderCore::Trouble() const {
  switch (fault_.load()) {
    case Fault::kNoInput:
      return "There is no sound input. Check its cable and the sound settings of this PC.";
    case Fault::kInputLost:
      return "The sound input has gone. What was recorded until then is kept.";
    case Fault::kDiskFull:
      return "The disk is full. What was recorded until then is kept.";
    case Fault::kFileLost:
      return "The drive does not take any more. What was recorded until then is kept.";
    case Fault::kNone:
      break;
  }
  if (lost_ == 0) return {};
  return "The disk was too slow: " + std::to_string(lost_) + " samples are missing.";
}

InputRecorder::InputRecorder(std::shared_ptr<InputDriver> driver)
    : core_(std::make_shared<RecorderCore>(std::move(driver))), worker_([core = core_] { core->Work(); }) {}

InputRecorder::~InputRecorder() {
  core_->Leave();
  if (core_->LeftWithin(kEndPatience)) {
    worker_.join();
  } else {
    worker_.detach();  // in the hands of a sound server that hangs; it keeps what it touches
  }
}

}  // namespace quixair::sound
