#pragma once

// The sound of the station as its channels see it: something that is handed a file, plays it by itself and is
// asked how far it is. The real players mix into one output that stays open for the life of the program; the
// simulated ones play in virtual time. All functions are called on the user interface thread and none of them
// waits for a device.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace quixair {

enum class ChannelMode : std::int32_t {
  kNotOpen = 524,
  kStopped = 525,  // opened and not started, or at its end
  kPlaying = 526,
  kPaused = 529,
};

/// What a channel can be told. kPrev is back to the first sample.
enum class ChannelCommand { kOpen, kPlay, kPause, kPrev, kClose };

/// Peaks since the last look, 0 to 1, for the level meters.
struct Levels {
  float left = 0;
  float right = 0;
};

/// One stream of the output. Positions and lengths are milliseconds.
class MediaPlayer {
 public:
  virtual ~MediaPlayer() = default;

  /// Opens the file at its start. `name` is the station's own path, for messages and traces; `host_path` is
  /// where it lies, none when no such file exists. What cannot be opened, or holds no audio, leaves the
  /// player not open with length 0. An open player closes first.
  virtual void Open(const std::string& name, const std::optional<std::filesystem::path>& host_path) = 0;
  /// Starts or resumes; Mode is kPlaying when the call returns. Nothing happens when not open.
  virtual void Play() = 0;
  /// Holds a playing stream where it is.
  virtual void Pause() = 0;
  /// Back to the first sample; a playing stream plays on from there, a paused one stays paused.
  virtual void Rewind() = 0;
  /// Silences and forgets the file; harmless when not open.
  virtual void Close() = 0;

  /// Cheap enough to be read a dozen times a tick.
  virtual ChannelMode Mode() const = 0;
  /// Length of the open file, 0 when not open.
  virtual std::int32_t Length() const = 0;
  /// How much of it was handed to the output.
  virtual std::int32_t Position() const = 0;
  /// Peaks of what was handed to the output since the last call.
  virtual Levels TakeLevels() = 0;
};

class Media {
 public:
  virtual ~Media() = default;
  /// `number` names the channel in traces, from 1.
  virtual std::unique_ptr<MediaPlayer> MakePlayer(int number) = 0;
  /// Begins to look through a file beside everything else; true once Open of it takes next to no time. For
  /// files of any size that are opened while others are on the air.
  virtual bool IsReadyToOpen(const std::optional<std::filesystem::path>& /*host_path*/) { return true; }
  /// Empty while sound reaches an output; otherwise what is wrong, in plain words for the operator.
  virtual std::string OutputTrouble() const = 0;
};

}  // namespace quixair
