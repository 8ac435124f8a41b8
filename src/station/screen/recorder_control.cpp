#include "station/screen/recorder_control.h"

#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/platform/files.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {
constexpr std::chrono::milliseconds kLookInterval{100};
}

WaveRecorder::WaveRecorder(ControlOwner& owner, std::string name)
    : Control(owner, std::move(name), ControlKind::kRecorder),
      recorder_(screen().platform().capture.MakeRecorder()),
      look_(screen().platform().timers.MakeTimer(
          [this] { screen().platform().gate.Enter([this] { Look(); }); })) {
  look_->Start(kLookInterval);
}

void WaveRecorder::LoadFormat() {
  format_ = screen().platform().capture.SavedFormat().value_or(format_);
}

Status WaveRecorder::SaveFormat() {
  return screen().platform().capture.SaveFormat(format_);
}

void WaveRecorder::ChooseFormat() {
  format_ = screen().platform().dialogs.FormatBox(format_).value_or(format_);
}

Status WaveRecorder::Record() {
  const Result<std::filesystem::path> file = screen().platform().files.HostPathToMake(file_name_);
  if (!file.ok()) return file.status();
  const Status started = recorder_->Start(file.value(), format_, max_record_time_);
  if (started.ok()) Look();
  return started;
}

void WaveRecorder::Stop() {
  recorder_->Stop();
  Look();
}

void WaveRecorder::Leave() {
  look_->Stop();
  recorder_->Stop();
}

void WaveRecorder::Look() {
  const bool capturing = recorder_->recording();
  if (capturing != std::exchange(told_capturing_, capturing)) {
    const auto& event = capturing ? on_started : on_stopped;
    if (event) event();
  }
  if (on_progress) on_progress();
}

}  // namespace quixair
