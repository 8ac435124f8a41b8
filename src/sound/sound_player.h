#pragma once

// One channel's player: opens a file as a stream, puts it into its slot of the mixer and hands it to its own
// worker. Made by the sound system, owned by the station, gone before the sound system. Going back to the
// start opens the file again and changes the streams in one step, so a file that was removed while it played
// cannot be rewound and closes.

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "sound/decode_worker.h"
#include "sound/sound_system.h"
#include "sound/stream.h"

namespace quixair::sound {

class SoundPlayer : public MediaPlayer {
 public:
  SoundPlayer(SoundSystem& system, std::size_t slot);
  ~SoundPlayer() override;

  void Open(const std::string& name, const std::optional<std::filesystem::path>& host_path) override;
  void Play() override;
  void Pause() override;
  void Rewind() override;
  void Close() override;
  ChannelMode Mode() const override { return stream_ == nullptr ? ChannelMode::kNotOpen : stream_->mode(); }
  std::int32_t Length() const override { return stream_ == nullptr ? 0 : stream_->length_ms(); }
  std::int32_t Position() const override { return stream_ == nullptr ? 0 : stream_->PositionMs(); }
  Levels TakeLevels() override { return stream_ == nullptr ? Levels{} : stream_->TakeLevels(); }

  /// By hand only: decodes what is needed for the next block.
  void DecodeAhead() { worker_.WorkOnce(); }

 private:
  std::unique_ptr<Stream> NewStream() const;
  void PutOn(std::unique_ptr<Stream> stream);

  SoundSystem& system_;
  const std::size_t slot_;
  std::filesystem::path path_;
  FileFacts facts_;
  Stream* stream_ = nullptr;  // the worker's; none while not open
  DecodeWorker worker_;
};

}  // namespace quixair::sound
