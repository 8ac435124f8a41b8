#pragma once

// Files become frames here. What a file is shows in its first bytes, never in its name: station libraries are
// full of MP3s called .wav and the reverse. A file is examined once, which may take a tenth of a second for
// an hour of MP3, and then opened as often as needed at next to no cost. Whoever opens a decoder owns it and
// calls it from one thread at a time.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

#include "sound/stereo_frame.h"

namespace quixair::sound {

enum class FileKind {
  kUnplayable,  // no audio in it, or none that can be told from noise
  kWave,        // anything with a header of its own: WAV of all kinds, AIFF, FLAC ...
  kMpeg,        // a chain of MPEG audio frames
};

/// What one look through a file found out.
struct FileFacts {
  FileKind kind = FileKind::kUnplayable;
  /// round(1000 * frames / rate), 0 for what cannot be played.
  std::int32_t length_ms = 0;
  /// MPEG only: the encoder's note on its padding fits the file, so the padding is to be left out.
  bool trim_padding = false;
};

/// Some frames in a row, all at `rate` frames a second. No frames: the file is at its end.
struct DecodedBlock {
  std::size_t frames = 0;
  int rate = 0;
};

class Decoder {
 public:
  virtual ~Decoder() = default;
  /// Fills `out` from its start, samples within +-1. The rate may change between blocks, in files glued
  /// together from several. A read error in the middle is an end.
  virtual DecodedBlock Read(std::span<StereoFrame> out) = 0;
};

/// Never fails: what is missing, unreadable, empty or no audio comes back as unplayable.
FileFacts ExamineFile(const std::filesystem::path& path);

/// At the first frame; none when the file cannot be opened any more as what `facts` tell.
std::unique_ptr<Decoder> OpenDecoder(const std::filesystem::path& path, const FileFacts& facts);

/// round(1000 * frames / rate), held within the range of the result.
std::int32_t MillisecondsOf(std::int64_t frames, int rate);

}  // namespace quixair::sound
