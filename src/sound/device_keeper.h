#pragma once

// Keeps a device on the air: opens one, watches it, falls back to the silent output the moment it dies or
// stops asking, and tries for another until sound is back. It is a list of rules stepped with the time, so
// tests run it on a clock of their own; the sound system steps it on a thread of its own, the only one that
// ever touches the driver.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

#include "sound/audio_driver.h"
#include "sound/output.h"
#include "station/platform/clock.h"

namespace quixair::sound {

enum class Trouble {
  kNone,
  kNoDevice,    // nothing could be opened
  kDeviceLost,  // it was there and went
  kDeviceHung,  // it is there and takes no sound
  kNoSpeaker,   // the sound server plays into the void
};

class DeviceKeeper {
 public:
  DeviceKeeper(std::unique_ptr<AudioDriver> driver, Output& output);
  ~DeviceKeeper();
  DeviceKeeper(const DeviceKeeper&) = delete;
  DeviceKeeper& operator=(const DeviceKeeper&) = delete;

  /// Call about ten times a second; may take as long as the driver does.
  void Step(SteadyTime now);
  /// Closes everything; silence renders from here on. The thread that steps.
  void Shut();

  /// Any thread.
  Trouble trouble() const { return trouble_.load(std::memory_order_relaxed); }

 private:
  struct OpenDevice {
    // In this order: closing the device ends the calls into the feed.
    std::unique_ptr<DeviceFeed> feed;
    std::unique_ptr<AudioDevice> device;
    SteadyTime opened;
    SteadyTime last_asked;
    SteadyTime even_since;
    std::uint64_t frames_asked = 0;
  };

  void Watch(SteadyTime now);
  static void NoteAsking(OpenDevice& open, SteadyTime now);
  void GoOnAir(SteadyTime now);
  void WatchOnAir(SteadyTime now);
  void LookForSpeaker(SteadyTime now);
  void GoSilent(Trouble trouble, SteadyTime next_try);
  bool MayStillBecomeReady(SteadyTime now) const;
  void TryToOpen(SteadyTime now);
  bool OpenAnother(SteadyTime now);
  void CloseCurrent();

  std::unique_ptr<AudioDriver> driver_;
  Output& output_;
  bool driver_started_ = false;
  std::optional<OpenDevice> current_;
  bool on_air_ = false;
  RenderToken::Owner last_owner_ = RenderToken::kSilence;
  int failed_opens_ = 0;
  SteadyTime next_try_;
  SteadyTime next_speaker_look_;
  std::atomic<Trouble> trouble_ = Trouble::kNone;
};

}  // namespace quixair::sound
