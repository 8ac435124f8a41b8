#pragma once

// The real sound of the station: as many players as there are channels, mixed into one output that stays open
// for the life of the program. main() makes one, owns it, and destroys it after the last player. When no
// sound card can be reached the items run on in silence and real time, OutputTrouble() says so, and the sound
// comes back by itself.
//
//     quixair::sound::SoundSystem sound;  // starts looking for the device and does not wait for it
//     std::unique_ptr<MediaPlayer> player = sound.MakePlayer(1);
//     player->Open("C:\\QXWAVE\\M0001.mp3", host_path);
//     player->Play();
//
// Everything here is called on the user interface thread and none of it waits for a device. Opening a file
// reads it on that thread: about a millisecond for WAV or a file that was open before, some ten for four
// minutes of new MP3; IsReadyToOpen takes that off it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <future>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "sound/audio_driver.h"
#include "sound/length_cache.h"
#include "sound/mixer.h"
#include "station/platform/media.h"

namespace quixair::sound {

class SoundCore;
class SoundPlayer;

class SoundSystem : public Media {
 public:
  enum class Drive {
    kDevice,  // a device, or the steady clock while there is none
    kByHand,  // nothing moves but by RenderByHand; for tests
  };

  struct Options {
    Drive drive = Drive::kDevice;
    /// Opens the devices; the real ones when empty.
    std::unique_ptr<AudioDriver> driver;
  };

  SoundSystem();
  explicit SoundSystem(Options options);
  /// All players must be gone. A hung sound server is given two seconds.
  ~SoundSystem() override;
  SoundSystem(const SoundSystem&) = delete;
  SoundSystem& operator=(const SoundSystem&) = delete;

  /// Throws std::length_error when 32 players exist already.
  std::unique_ptr<MediaPlayer> MakePlayer(int number) override;
  bool IsReadyToOpen(const std::optional<std::filesystem::path>& host_path) override;
  std::string OutputTrouble() const override;

  /// Lengths found in this session; shared with whoever else measures files.
  LengthCache& lengths() { return lengths_; }

  /// How often an item had a hole because its file could not be read in time. Any thread.
  std::uint64_t underruns() const;

  /// Decodes what is needed, then renders the next block into `out`; kByHand only, any one thread.
  void RenderByHand(std::span<StereoFrame> out);

 private:
  std::size_t FreeSlot() const;

  std::shared_ptr<SoundCore> core_;
  LengthCache lengths_;
  std::array<SoundPlayer*, Mixer::kSlots> players_{};  // by slot of the mixer, none where free
  std::filesystem::path examined_;                     // the last file of IsReadyToOpen
  std::future<void> examination_;                      // by a helper thread, which the destructor waits for
  friend class SoundPlayer;
};

}  // namespace quixair::sound
