#include "sound/sound_core.h"

#include <chrono>

namespace quixair::sound {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kKeeperPause{50};
constexpr milliseconds kSilencePause{10};
constexpr std::chrono::seconds kPatienceAtTheEnd{2};

}  // namespace

SoundCore::SoundCore(std::unique_ptr<AudioDriver> driver) {
  if (driver) keeper_ = std::make_unique<DeviceKeeper>(std::move(driver), output_);
}

void SoundCore::Start() {
  if (by_hand()) return;
  silence_thread_ = std::thread([this] { PaceSilence(); });
  keeper_thread_ = std::thread([self = shared_from_this()] { self->KeepDevice(); });
}

void SoundCore::Stop() {
  if (by_hand()) return;
  output_.token().HandTo(RenderToken::kNobody);
  std::unique_lock lock(mutex_);
  stopping_ = true;
  changed_.notify_all();
  const bool left = changed_.wait_for(lock, kPatienceAtTheEnd, [this] { return keeper_left_; });
  lock.unlock();
  silence_thread_.join();
  if (left) {
    keeper_thread_.join();
  } else {
    keeper_thread_.detach();
  }
}

void SoundCore::KeepDevice() {
  do {
    keeper_->Step(std::chrono::steady_clock::now());
  } while (!StopsWithin(kKeeperPause));
  keeper_->Shut();
  const std::lock_guard lock(mutex_);
  keeper_left_ = true;
  changed_.notify_all();
}

void SoundCore::PaceSilence() {
  do {
    output_.SilentStep(std::chrono::steady_clock::now());
  } while (!StopsWithin(kSilencePause));
}

bool SoundCore::StopsWithin(milliseconds pause) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, pause, [this] { return stopping_; });
}

}  // namespace quixair::sound
