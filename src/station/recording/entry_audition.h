#pragma once

// Listening to a recording on an entry screen, and measuring it: the channel with its transport bar, and the hint
// line that tells how far it is. Owned by its screen.

#include <functional>
#include <optional>
#include <string>

#include "station/screen/controls.h"

namespace quixair {

class EntryAudition {
 public:
  /// With `plays_mp3` an .mp3 is taken where there is no .wav.
  EntryAudition(Screen& screen, TextBox& hint, bool plays_mp3);
  EntryAudition(const EntryAudition&) = delete;
  EntryAudition& operator=(const EntryAudition&) = delete;

  MediaControl MMControl1;
  Timer Timer1;  // shows the position

  /// A file is being opened, or the opening is over.
  std::function<void(bool opening, const std::string& path)> on_opening;

  /// Where the audio of a recording lies, or would; empty when it was looked for and is nowhere.
  std::string PathOf(const std::string& drive, const std::string& id) const;
  /// Its length as it is shown; none when there is no audio, which the hint line tells.
  std::optional<std::string> Play(const std::string& drive, const std::string& id);
  /// Its length as it is shown; none when there is no audio.
  std::optional<std::string> Measure(const std::string& drive, const std::string& id);
  void End();

 private:
  bool Open(const std::string& path);
  std::string LengthShown() const;

  TextBox& hint_;
  const bool plays_mp3_;
};

}  // namespace quixair
