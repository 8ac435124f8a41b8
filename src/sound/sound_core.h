#pragma once

// The moving parts behind the sound system: mixer, output, device keeper and the two threads that step them.
// Shared by the sound system and the keeper's thread, because a hung sound server may hold that thread beyond
// the end of the program; it then keeps what it touches, and finds the output closed for good.

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "sound/device_keeper.h"
#include "sound/mixer.h"
#include "sound/output.h"

namespace quixair::sound {

class SoundCore : public std::enable_shared_from_this<SoundCore> {
 public:
  /// Without a driver no thread is started and the mixer is rendered by hand.
  explicit SoundCore(std::unique_ptr<AudioDriver> driver);

  void Start();
  /// No stream is touched any more when it returns. Gives the driver two seconds to close.
  void Stop();

  Mixer& mixer() { return mixer_; }
  const Mixer& mixer() const { return mixer_; }
  bool by_hand() const { return !keeper_; }
  Trouble trouble() const { return keeper_ ? keeper_->trouble() : Trouble::kNone; }

 private:
  void KeepDevice();
  void PaceSilence();
  bool StopsWithin(std::chrono::milliseconds pause);

  Mixer mixer_;
  Output output_{mixer_};
  std::unique_ptr<DeviceKeeper> keeper_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool stopping_ = false;
  bool keeper_left_ = false;
  std::thread keeper_thread_;
  std::thread silence_thread_;
};

}  // namespace quixair::sound
