#include "sound/sound_player.h"

#include "sound/sound_core.h"

namespace quixair::sound {
namespace {

// Decoded before Open returns, so that Play is heard with the next block; the worker adds the rest meanwhile.
constexpr std::size_t kReadyFrames = 16384;

}  // namespace

SoundPlayer::SoundPlayer(SoundSystem& system, std::size_t slot)
    : system_(system), slot_(slot), worker_(system.core_->mixer(), !system.core_->by_hand()) {}

SoundPlayer::~SoundPlayer() {
  PutOn(nullptr);
  system_.players_[slot_] = nullptr;
}

void SoundPlayer::Open(const std::string& /*name*/, const std::optional<std::filesystem::path>& host_path) {
  Close();
  if (!host_path) return;
  facts_ = system_.lengths().Facts(*host_path);
  path_ = *host_path;
  PutOn(NewStream());
}

void SoundPlayer::Play() {
  if (stream_ != nullptr) stream_->Play();
}

void SoundPlayer::Pause() {
  if (stream_ != nullptr) stream_->Pause();
}

void SoundPlayer::Rewind() {
  if (stream_ == nullptr || stream_->AtFirstFrame()) return;
  const ChannelMode mode = stream_->mode();
  std::unique_ptr<Stream> fresh = NewStream();
  if (fresh && mode != ChannelMode::kStopped) fresh->Play();
  if (fresh && mode == ChannelMode::kPaused) fresh->Pause();
  PutOn(std::move(fresh));
}

void SoundPlayer::Close() {
  PutOn(nullptr);
}

std::unique_ptr<Stream> SoundPlayer::NewStream() const {
  std::unique_ptr<Decoder> decoder = OpenDecoder(path_, facts_);
  if (!decoder) return nullptr;
  auto stream = std::make_unique<Stream>(std::move(decoder), facts_.length_ms);
  stream->Fill(kReadyFrames);
  return stream;
}

void SoundPlayer::PutOn(std::unique_ptr<Stream> stream) {
  Stream* const before = stream_;
  stream_ = stream ? worker_.Adopt(std::move(stream)) : nullptr;
  system_.core_->mixer().SetSlot(slot_, stream_);
  if (before != nullptr) worker_.Retire(before);
}

}  // namespace quixair::sound
