#pragma once

// How an id becomes sound at the moment its turn comes: which audio file it is, which announcement the clock
// asks for, and whether a spot's dates let it on the air today. Both playback modes resolve with the same
// steps and the same words.

#include <optional>
#include <string>
#include <string_view>

#include "station/platform/clock.h"
#include "station/platform/files.h"

namespace quixair {

/// ".wav" before ".mp3"; none when the recording has neither.
std::optional<std::string> FindAudioFile(Files& files, std::string_view drive, std::string_view id);

/// C:\QXTIME\T<hhmm>.WAV by the 12-hour clock: one recording serves both halves of the day.
std::string TimeFileName(const CivilTime& now);

/// What the switch SPOTDRST.DTA says; kUnknown when the file is missing, which counts as off.
enum class SpotDateSwitch { kUnknown, kOff, kOn };
SpotDateSwitch ReadSpotDateSwitch(Files& files);
/// "Spot Date Check: ON", "... OFF" or "... ?".
std::string SpotDateCaption(SpotDateSwitch value);

/// Why a spot must not play today; none when it may. A spot plays on its start date and on its kill date. The
/// reason is what screen and error log show behind the id, the number of days with its sign: " [Start Date is
/// 1 days away]", " [Kill Date has Passed by -3 days]".
std::optional<std::string> SpotDateRefusal(std::string_view start_date, std::string_view kill_date,
                                           const CivilTime& today);

}  // namespace quixair
