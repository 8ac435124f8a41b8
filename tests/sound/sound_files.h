#pragma once

// Sound files made on the spot for the tests of this folder, good ones and broken ones, in a folder that goes
// with the test.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "sound/stereo_frame.h"

namespace quixair::sound {

class SoundFiles {
 public:
  SoundFiles();
  ~SoundFiles();
  SoundFiles(const SoundFiles&) = delete;
  SoundFiles& operator=(const SoundFiles&) = delete;

  std::filesystem::path Path(const std::string& name) const { return folder_ / name; }

  /// Interleaved `samples` in a file of the format, a libsndfile number.
  std::filesystem::path Wave(const std::string& name, const std::vector<float>& samples, int rate,
                             int channels, int format) const;
  /// 48 kHz stereo of 16 bits.
  std::filesystem::path Wave(const std::string& name, const std::vector<StereoFrame>& frames) const;
  std::filesystem::path Write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path folder_;
};

/// No two stretches alike, every sample a whole number of 16 bits, at half level.
std::vector<StereoFrame> UniqueFrames(std::size_t count, std::uint32_t seed);
/// Empty when the same to the last bit, else the first thing that differs.
std::string Difference(const std::vector<StereoFrame>& actual, const std::vector<StereoFrame>& expected);
/// A sine of 1000 Hz at half level on every channel.
std::vector<float> Sine(std::size_t frames, int rate, int channels);
std::string Noise(std::size_t bytes, std::uint32_t seed);
std::string BytesOf(const std::filesystem::path& path);
/// An MP3 of tests/data.
std::filesystem::path Sample(const std::string& name);
/// A leading tag of so many bytes in all, as music stores put before MP3s.
std::string LeadingTag(std::size_t bytes);

}  // namespace quixair::sound
