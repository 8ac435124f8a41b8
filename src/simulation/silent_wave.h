#pragma once

// PCM WAV files of silence: what a simulated recorder writes, and audio of a wanted length for stations that are made on
// the spot. A file that holds nothing but silence takes no room on the disk.

#include <cstdint>
#include <filesystem>
#include <string>

#include "station/platform/recording_format.h"

namespace quixair::simulation {

std::string SilentWave(const RecordingFormat& format, std::int32_t milliseconds);

/// False when it cannot be written.
bool WriteSilentWave(const std::filesystem::path& path, std::int32_t milliseconds);
/// Milliseconds that a WAV file written by this program really holds, cut off or not; 0 for anything else.
std::int32_t LengthOfWave(const std::filesystem::path& path);

}  // namespace quixair::simulation
