#pragma once

// MPEG audio (MP3 and its elder layers) through libmpg123. Such files have no dependable header: the length
// is known only after every frame was looked at, and a hundred random bytes may look like a frame. Used by
// decoder.cpp only.

#include <filesystem>
#include <memory>

#include "sound/decoder.h"

namespace quixair::sound {

FileFacts ExamineMpeg(const std::filesystem::path& path);
std::unique_ptr<Decoder> OpenMpeg(const std::filesystem::path& path, bool trim_padding);

}  // namespace quixair::sound
