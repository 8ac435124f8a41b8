#pragma once

// Channels that play in virtual time: no sound, but the lengths of the real files, and an end at the very millisecond.

#include <filesystem>
#include <functional>
#include <string>

#include "simulation/virtual_time.h"
#include "station/platform/media.h"

namespace quixair::simulation {

/// Length of an audio file in milliseconds, 0 when it cannot be played.
using LengthProbe = std::function<std::int32_t(const std::filesystem::path&)>;

struct ChannelEvent {
  enum class Act { kOpen, kPlay, kPause, kPrev, kClose, kEnd };
  int channel = 0;
  Act act = Act::kOpen;
  std::string file;         // as given to the channel; of kOpen only
  std::int32_t length = 0;  // of kOpen only
};

class SimulatedMedia : public Media {
 public:
  SimulatedMedia(VirtualTime& time, LengthProbe probe) : time_(time), probe_(std::move(probe)) {}
  std::unique_ptr<MediaPlayer> MakePlayer(int number) override;
  std::string OutputTrouble() const override { return output_trouble; }

  /// Told of each command that had an effect, of each "Open", and of each end.
  std::function<void(const ChannelEvent&)> on_event;
  /// What the output is to say of itself; items go on in their time.
  std::string output_trouble;

 private:
  class Player;
  VirtualTime& time_;
  LengthProbe probe_;
};

}  // namespace quixair::simulation
