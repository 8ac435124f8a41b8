#pragma once

// The ten numbers that shape Random playback, in the order of their file RANDDATA.DTA. The setup screen and
// the playback screen hold different defaults for a zero, on purpose: each applies its own to what it read.

#include <string>
#include <string_view>
#include <vector>

namespace quixair {

class Files;

namespace break_type {
inline constexpr int kNone = 0;
inline constexpr int kInternalRandom = 1;
inline constexpr int kScheduledStopSet = 2;  // internal breaks by song count, and stop sets by the clock
}  // namespace break_type

struct RandomSettings {
  int SongsPerStinger = 0;  // kept for the file's order; no playback acts on stingers
  int SongsPerLiner = 0;
  int SongsPerBreak = 0;
  int MaxSpotsPerBreak = 0;
  int LinerEnable = 0;    // the stored number is 1 for the answer "No" to "Disable Liner Playback?"
  int StingerEnable = 0;  // likewise
  int BreakType = break_type::kNone;
  int BreakOpensWithLiner = 0;
  int BreakClosesWithLiner = 0;
  int PauseOverrideSecs = 0;  // 0 is off

  bool operator==(const RandomSettings&) const = default;
};

/// What is missing from the end of the text is 0.
RandomSettings ParseRandomSettings(std::string_view content);
std::string FormatRandomSettings(const RandomSettings& settings);

/// All zeros when there is no file.
RandomSettings ReadRandomSettings(Files& files);

/// The setup screen's defaults, which reach the file on Save.
void ApplySetupDefaults(RandomSettings& settings);
/// The playback's defaults, which never do. Liners that are disabled are disabled at the ends of breaks too.
void ApplyPlaybackDefaults(RandomSettings& settings);

/// The settings as rows for the operator.
std::vector<std::string> SettingsPrintOut(const RandomSettings& settings);

}  // namespace quixair
