#include "sound/device_keeper.h"

namespace quixair::sound {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// A hung server gives no other sign.
constexpr milliseconds kLostAfterNoCall{500};
// A device that starts or comes to asks for a few buffers at once and then pauses; only an even pace is fit
// for the air.
constexpr milliseconds kLongestPause{150};
constexpr milliseconds kEvenFor{250};
constexpr milliseconds kEvenWithin{2500};
// A try costs a millisecond or two, and what a server that is back has to wait for it is silence.
constexpr milliseconds kBetweenTries{250};
// Opening beside a hung device may hang as well, so it first gets the chance to come to.
constexpr seconds kPatienceWithHung{5};
constexpr seconds kBetweenSpeakerLooks{2};
constexpr int kFailuresBeforeRestart = 2;

}  // namespace

DeviceKeeper::DeviceKeeper(std::unique_ptr<AudioDriver> driver, Output& output)
    : driver_(std::move(driver)), output_(output) {}

DeviceKeeper::~DeviceKeeper() {
  Shut();
}

void DeviceKeeper::Step(SteadyTime now) {
  Watch(now);
  if (on_air_ || now < next_try_ || MayStillBecomeReady(now)) return;
  TryToOpen(now);
}

void DeviceKeeper::Shut() {
  CloseCurrent();
  if (driver_started_) driver_->Stop();
  driver_started_ = false;
}

void DeviceKeeper::Watch(SteadyTime now) {
  if (!current_) return;
  NoteAsking(*current_, now);
  if (on_air_) {
    WatchOnAir(now);
  } else if (now - current_->even_since >= kEvenFor && current_->device->Connected()) {
    GoOnAir(now);
  }
}

void DeviceKeeper::NoteAsking(OpenDevice& open, SteadyTime now) {
  const std::uint64_t frames_asked = open.feed->frames_asked();
  const bool asked = frames_asked != open.frames_asked;
  const bool paused = now - open.last_asked > kLongestPause;
  if (asked) {
    open.frames_asked = frames_asked;
    open.last_asked = now;
  }
  if (paused || open.frames_asked == 0) open.even_since = now;
}

// A new device that is ready, or one that hung and came to.
void DeviceKeeper::GoOnAir(SteadyTime now) {
  output_.token().HandTo(current_->feed->owner());
  on_air_ = true;
  failed_opens_ = 0;
  trouble_ = Trouble::kNone;
  next_speaker_look_ = now;
}

void DeviceKeeper::WatchOnAir(SteadyTime now) {
  // A dead device goes on asking, at a pace of its own that is no clock.
  if (!current_->device->Connected()) {
    GoSilent(Trouble::kDeviceLost, now);
  } else if (now - current_->last_asked >= kLostAfterNoCall) {
    GoSilent(Trouble::kDeviceHung, now + kPatienceWithHung);
  } else {
    LookForSpeaker(now);
  }
}

void DeviceKeeper::LookForSpeaker(SteadyTime now) {
  if (now < next_speaker_look_) return;
  next_speaker_look_ = now + kBetweenSpeakerLooks;
  trouble_ = driver_->LeadsNowhere() ? Trouble::kNoSpeaker : Trouble::kNone;
}

void DeviceKeeper::GoSilent(Trouble trouble, SteadyTime next_try) {
  output_.token().HandTo(RenderToken::kSilence);
  on_air_ = false;
  trouble_ = trouble;
  next_try_ = next_try;
}

bool DeviceKeeper::MayStillBecomeReady(SteadyTime now) const {
  return current_ && current_->device->Connected() && now - current_->opened < kEvenWithin;
}

void DeviceKeeper::TryToOpen(SteadyTime now) {
  next_try_ = now + kBetweenTries;
  if (!driver_started_) driver_started_ = driver_->Start();
  if (driver_started_ && OpenAnother(now)) return;
  if (trouble_ == Trouble::kNone) trouble_ = Trouble::kNoDevice;
  ++failed_opens_;
  const bool start_anew =
      driver_started_ && (!driver_->FirstChoice() || failed_opens_ % kFailuresBeforeRestart == 0);
  if (start_anew) Shut();
}

bool DeviceKeeper::OpenAnother(SteadyTime now) {
  if (driver_->OneDeviceOnly()) CloseCurrent();
  std::unique_ptr<AudioDevice> device = driver_->Open();
  if (!device) return false;
  auto feed = std::make_unique<DeviceFeed>(output_, ++last_owner_, device->rate());
  CloseCurrent();
  current_.emplace(OpenDevice{std::move(feed), std::move(device), now, now, now});
  current_->device->Start(*current_->feed);
  return true;
}

void DeviceKeeper::CloseCurrent() {
  if (!current_) return;
  output_.token().HandTo(RenderToken::kSilence);
  on_air_ = false;
  current_->device.reset();
  current_.reset();
}

}  // namespace quixair::sound
