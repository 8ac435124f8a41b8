#include "sound/sound_system.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <stdexcept>

#include "sound/sound_core.h"
#include "sound/sound_player.h"

namespace quixair::sound {
namespace {

std::unique_ptr<AudioDriver> DriverOf(SoundSystem::Options& options) {
  if (options.drive == SoundSystem::Drive::kByHand) return nullptr;
  return options.driver ? std::move(options.driver) : MakeSdlDrivers().output;
}

}  // namespace

SoundSystem::SoundSystem() : SoundSystem(Options{}) {}

SoundSystem::SoundSystem(Options options) : core_(std::make_shared<SoundCore>(DriverOf(options))) {
  core_->Start();
}

SoundSystem::~SoundSystem() {
  core_->Stop();
}

std::unique_ptr<MediaPlayer> SoundSystem::MakePlayer(int /*number*/) {
  const std::size_t slot = FreeSlot();
  auto player = std::make_unique<SoundPlayer>(*this, slot);
  players_[slot] = player.get();
  return player;
}

bool SoundSystem::IsReadyToOpen(const std::optional<std::filesystem::path>& host_path) {
  if (!host_path || lengths_.Knows(*host_path)) return true;
  if (examination_.valid()) {
    if (examination_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return false;
    examination_.get();
    if (examined_ == *host_path) return true;  // it changes under our eyes
  }
  examined_ = *host_path;
  examination_ = std::async(std::launch::async, [this, path = *host_path] { lengths_.Facts(path); });
  return false;
}

std::string SoundSystem::OutputTrouble() const {
  constexpr const char* kRunsOn = " The items run on silently; sound returns by itself.";
  switch (core_->trouble()) {
    case Trouble::kNone:
      return {};
    case Trouble::kNoDevice:
      return std::string("NO SOUND OUTPUT - no sound card could be opened. Check the card and its cables.") +
             kRunsOn;
    case Trouble::kDeviceLost:
      return std::string(
                 "NO SOUND OUTPUT - the sound card or sound service has gone. Check the card and its "
                 "cables.") +
             kRunsOn;
    case Trouble::kDeviceHung:
      return std::string("NO SOUND OUTPUT - the sound card or sound service does not answer.") + kRunsOn;
    case Trouble::kNoSpeaker:
      return std::string(
                 "NO SOUND OUTPUT - this PC has no sound card at the moment. Check the card and its "
                 "cables.") +
             kRunsOn;
  }
  return {};
}

std::uint64_t SoundSystem::underruns() const {
  return core_->mixer().underruns();
}

void SoundSystem::RenderByHand(std::span<StereoFrame> out) {
  for (SoundPlayer* player : players_) {
    if (player != nullptr) player->DecodeAhead();
  }
  core_->mixer().Render(out);
}

std::size_t SoundSystem::FreeSlot() const {
  const auto* const free = std::find(players_.begin(), players_.end(), nullptr);
  if (free == players_.end()) throw std::length_error("more players than the mixer has slots");
  return static_cast<std::size_t>(std::distance(players_.begin(), free));
}

}  // namespace quixair::sound
