#pragma once

// What a playback screen tells a front end that draws more than plain controls: a progress bar, level meters,
// a state that is readable from across a room. Read as often as one likes, on the user interface thread.

#include <vector>

namespace quixair {

class MediaControl;

enum class AirState {
  kReady,  // no run: the operator has yet to press Start
  kPlaying,
  kPaused,
  kLive,    // silent on purpose until Continue
  kSilent,  // a run is on, and nothing sounds
};

struct OnAirStatus {
  AirState state = AirState::kReady;
  bool stop_set = false;       // the item belongs to a stop set
  double elapsed_seconds = 0;  // of the item on the air, pauses not counted
  double length_seconds = 0;   // 0 when nothing is open
};

class OnAirScreen {
 public:
  virtual OnAirStatus on_air_status() const = 0;
  /// The channels that can sound, for their meters.
  virtual std::vector<MediaControl*> sounding_channels() = 0;

 protected:
  ~OnAirScreen() = default;
};

}  // namespace quixair
