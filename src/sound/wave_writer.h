#pragma once

// A PCM WAV file that is being recorded. Its header is brought up to date while it grows, so that what was
// written before the program or the PC died is a file that plays. Used by one thread.

#include <sndfile.h>

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "sound/stereo_frame.h"
#include "station/platform/recording_format.h"
#include "station/platform/run_time_error.h"

namespace quixair::sound {

class WaveWriter {
 public:
  WaveWriter() = default;
  ~WaveWriter();
  WaveWriter(const WaveWriter&) = delete;
  WaveWriter& operator=(const WaveWriter&) = delete;

  /// A file that is there gives its name up, and is whole for those who have it open.
  Status Open(const std::filesystem::path& file, const RecordingFormat& format);
  bool open() const { return file_ != nullptr; }
  /// Both sides are mixed into a mono file. 61 and others when not all of it could be written; what could is
  /// counted.
  Status Write(std::span<const StereoFrame> frames);
  /// The header tells what is there, and both are on the disk.
  void Update();
  void Close();

  /// In the present or the latest file.
  std::int64_t frames() const { return frames_; }

 private:
  SNDFILE* file_ = nullptr;
  RecordingFormat format_;
  std::int64_t frames_ = 0;
  std::vector<int> samples_;
  std::string folder_;  // its entry of the file is not on the disk yet
};

/// The sample as the upper `bits` of a whole number, the nearest one, held to the range of the format.
int PcmSample(float sample, int bits);

}  // namespace quixair::sound
