#pragma once

// What a playback screen tells a front end that draws more than plain controls: a progress bar, level meters,
// a state that is readable from across a room. Read as often as one likes, on the user interface thread.

#include <optional>
#include <string>
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

enum class StopSetState {
  kOff,        // the settings ask for none, or the operator declined
  kNotChosen,  // the operator has yet to choose a template
  kMissing,    // the template was not found
  kWrongDay,   // the template is of another day
  kScanning,   // waiting for the next time
  kDue,        // plays when the item on the air ends
  kPlaying,
  kPaused,  // in a set, until the operator goes on or the override has run out
};

struct StopSetStatus {
  StopSetState state = StopSetState::kOff;
  std::string template_name;
  int set_count = 0;                    // times of the day in the template
  int total_seconds = 0;                // of all its recordings
  std::string next_time;                // of the set that comes next, "06:30 PM"; empty for none today
  int minutes_to_next = 0;              // whole minutes until then
  std::optional<int> override_seconds;  // left of a pause in a set; none when the override is off
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
  /// None on a screen that has no stop sets.
  virtual std::optional<StopSetStatus> stop_set_status() const { return std::nullopt; }

 protected:
  ~OnAirScreen() = default;
};

}  // namespace quixair
