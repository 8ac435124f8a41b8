#pragma once

// Files with a proper header, through libsndfile: WAV with whole numbers of 8 to 32 bits, float and ADPCM,
// and the other kinds that the library happens to know. Used by decoder.cpp only.

#include <filesystem>
#include <memory>

#include "sound/decoder.h"

namespace quixair::sound {

FileFacts ExamineWave(const std::filesystem::path& path);
std::unique_ptr<Decoder> OpenWave(const std::filesystem::path& path);

}  // namespace quixair::sound
