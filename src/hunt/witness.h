#pragma once

// The hunter's look at a station, from outside alone: the screens, the channels that sound, the boxes, the files on disk.
// Everything that a rule of the hunter asks goes through here, and nothing here knows how the station comes to it.

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/simulated_station.h"
#include "station/onair/on_air_status.h"
#include "station/platform/text.h"
#include "station/screen/controls.h"

namespace quixair::hunt {

enum class Mode { kRandom, kPickList };

/// One of a playback screen's channels at this moment.
struct Channel {
  ChannelMode mode = ChannelMode::kNotOpen;
  std::string path;
  std::int32_t position = 0;
  std::int32_t length = 0;
  bool plays() const { return mode == ChannelMode::kPlaying; }
  std::string id() const;  // the file's stem
};

/// A playback screen that is open.
struct OnAir {
  Mode mode = Mode::kRandom;
  AirState state = AirState::kReady;
  bool in_set = false;  // a stop set is due or plays
  bool in_run() const { return state != AirState::kReady; }
  std::array<Channel, 2> channels;
  bool sounds() const { return channels[0].plays() || channels[1].plays(); }
};

/// An item from its start to its end.
struct Airing {
  Mode mode = Mode::kRandom;
  int channel = 1;
  std::string path;
  std::string id;
  CivilTime began;
  SteadyTime began_at;
  std::chrono::milliseconds sounded{0};
  bool over = false;  // it does not sound any more
  bool in_set = false;
  bool wants_proof = false;
  std::string refusal;  // why it must not sound: out of its dates when it began
};

/// What is being done to the station just now.
enum class Cause { kNothing, kTime, kOperator, kWorld, kStart, kPowerCut };

class Witness {
 public:
  explicit Witness(simulation::SimulatedStation& station);
  ~Witness();
  Witness(const Witness&) = delete;
  Witness& operator=(const Witness&) = delete;

  /// Told before each statement of the script.
  void Begin(std::string_view statement);
  /// Told after each statement.
  void End();
  /// After each look; the station is looked at at each change on a channel, at each box, twice a second and after each
  /// statement.
  std::function<void()> on_look;
  /// Not in the middle of a step, and its ticks have had their turn since the last change: what the screen shows can be
  /// taken at its word.
  bool settled() const;

  simulation::SimulatedStation& station() const { return station_; }
  const std::vector<OnAir>& on_air() const { return on_air_; }
  bool in_run() const;
  /// A control of a playback screen that is open, else none.
  Control* Find(Mode mode, std::string_view control) const;
  std::string Shown(Mode mode, std::string_view control) const;
  const std::vector<Airing>& airings() const { return airings_; }

  Cause cause() const { return cause_; }
  /// A screen besides the console and what is on the air: an operator is at work there.
  bool other_screen_open() const { return !other_screens_.empty(); }
  /// A run is on, nothing sounds, and neither an operator nor the list wants it so: since when.
  std::chrono::milliseconds UnwantedSilence() const;
  /// What a channel was last told to open in vain, and how long ago.
  const std::string& failed_path() const { return failed_path_; }
  std::chrono::milliseconds SinceFailedOpen() const;
  /// It could not be opened, or was out of its dates, at some time of this run.
  bool WasPassedOver(std::string_view id) const { return passed_over_.count(UpperCased(id)) != 0; }

  /// Of this look: what has happened since the last one.
  struct News {
    std::optional<simulation::ShownBox> box;
    std::string fault;              // an exception in an event
    std::optional<Mode> run_ended;  // its screen shows no run any more
    std::optional<Airing> began;
    std::string not_back;  // a run that a power cut broke off, what differs after the restart
  };
  const News& news() const { return news_; }

  /// The last run-time error that a box has told since the statement began.
  const std::string& told_error() const { return told_error_; }

  /// Rare things that have happened in this run.
  const std::set<std::string>& sometimes() const { return sometimes_; }

 private:
  struct ScreenHands {  // looked up once while the screen is open
    Screen* screen = nullptr;
    const OnAirScreen* on_air = nullptr;
    std::array<MediaControl*, 2> channels{};
  };
  struct Place {  // a channel of a screen
    Mode mode;
    int number;
    auto operator<=>(const Place&) const = default;
  };
  struct Heard {
    bool reopened = false;  // since it last began to play
    bool plays = false;
    std::string path;
    std::optional<std::size_t> airing;
  };
  struct BrokenOff {
    Mode mode;
    std::string template_name;
  };

  void Connect();
  void OnChannel(const simulation::ChannelEvent& event);
  void Look(bool settled);
  ScreenHands& Hands(Mode mode);
  OnAir LookAt(Mode mode, ScreenHands& hands);
  void Follow(const OnAir& screen);
  Airing NewAiring(const OnAir& screen, int number);
  bool WantsProof(const OnAir& screen, const std::string& id) const;
  std::string RefusalOf(const std::string& id) const;
  void CountSilence();
  bool SilenceIsWanted(const OnAir& screen) const;
  void NotePassedOver();
  void NotePowerCut();
  void CompareAfterRestart();
  void NoteRareThings();
  void Happened(const char* rare_thing) { sometimes_.insert(rare_thing); }
  bool Exists(std::string_view path) const;
  std::string TemplateName(Mode mode) const;

  simulation::SimulatedStation& station_;
  std::unique_ptr<TimerShots> timer_;
  bool settled_ = true;
  SteadyTime changed_at_{};
  bool box_open_ = false;
  std::set<std::string> other_screens_;
  std::map<Mode, ScreenHands> hands_;
  std::vector<OnAir> on_air_;
  std::vector<OnAir> before_;
  std::vector<Airing> airings_;
  std::map<Place, Heard> heard_;
  SteadyTime last_look_{};
  SteadyTime silent_since_{};
  bool silent_ = false;
  std::string failed_path_;
  std::set<std::string> passed_over_;
  SteadyTime failed_at_{};
  Cause cause_ = Cause::kNothing;
  News news_;
  std::string told_error_;
  std::optional<BrokenOff> broken_off_;
  SteadyTime started_at_{};
  int restarts_ = 0;
  bool disk_full_ = false;
  bool record_spoilt_ = false;  // other hands or a full disk may have changed what a restart goes by
  bool output_lost_ = false;
  bool paused_before_midnight_ = false;
  std::set<std::string> sometimes_;
};

}  // namespace quixair::hunt
