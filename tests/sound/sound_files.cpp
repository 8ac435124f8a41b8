#include "sound/sound_files.h"

#include <sndfile.h>
#include <stdlib.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>
#include <random>
#include <stdexcept>

namespace quixair::sound {

SoundFiles::SoundFiles() {
  std::string pattern = (std::filesystem::temp_directory_path() / "quixair-sound-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = pattern;
}

SoundFiles::~SoundFiles() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path SoundFiles::Wave(const std::string& name, const std::vector<float>& samples, int rate,
                                       int channels, int format) const {
  SF_INFO info{};
  info.samplerate = rate;
  info.channels = channels;
  info.format = format;
  SNDFILE* const file = sf_open(Path(name).c_str(), SFM_WRITE, &info);
  if (file == nullptr) throw std::runtime_error("cannot write " + name + ": " + sf_strerror(nullptr));
  sf_write_float(file, samples.data(), static_cast<sf_count_t>(samples.size()));
  sf_close(file);
  return Path(name);
}

std::filesystem::path SoundFiles::Wave(const std::string& name,
                                       const std::vector<StereoFrame>& frames) const {
  // As whole numbers: the library would scale floats by one less than full level.
  std::vector<short> samples;
  for (const StereoFrame& frame : frames) {
    for (const float sample : {frame.left, frame.right}) {
      samples.push_back(static_cast<short>(std::lround(sample * 32768.0F)));
    }
  }
  SF_INFO info{};
  info.samplerate = kMixRate;
  info.channels = 2;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* const file = sf_open(Path(name).c_str(), SFM_WRITE, &info);
  if (file == nullptr) throw std::runtime_error("cannot write " + name);
  sf_write_short(file, samples.data(), static_cast<sf_count_t>(samples.size()));
  sf_close(file);
  return Path(name);
}

std::filesystem::path SoundFiles::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(Path(name), std::ios::binary) << bytes;
  return Path(name);
}

std::vector<StereoFrame> UniqueFrames(std::size_t count, std::uint32_t seed) {
  std::mt19937 random(seed);
  const auto sample = [&random] {
    return static_cast<float>(static_cast<int>(random() % 32768U) - 16384) / 32768.0F;
  };
  std::vector<StereoFrame> frames(count);
  for (StereoFrame& frame : frames) {
    frame.left = sample();
    frame.right = sample();
  }
  return frames;
}

std::string Difference(const std::vector<StereoFrame>& actual, const std::vector<StereoFrame>& expected) {
  if (actual.size() != expected.size()) {
    return std::to_string(actual.size()) + " frames, not " + std::to_string(expected.size());
  }
  for (std::size_t at = 0; at < actual.size(); ++at) {
    if (actual[at] == expected[at]) continue;
    return "frame " + std::to_string(at) + " is " + std::to_string(actual[at].left) + " " +
           std::to_string(actual[at].right) + ", not " + std::to_string(expected[at].left) + " " +
           std::to_string(expected[at].right);
  }
  return "";
}

std::vector<float> Sine(std::size_t frames, int rate, int channels) {
  std::vector<float> samples;
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const double angle = 2 * std::numbers::pi * 1000 * static_cast<double>(frame) / rate;
    samples.insert(samples.end(), static_cast<std::size_t>(channels),
                   static_cast<float>(0.5 * std::sin(angle)));
  }
  return samples;
}

std::string Noise(std::size_t bytes, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::string noise(bytes, '\0');
  for (char& byte : noise) byte = static_cast<char>(random() & 0xFFU);
  return noise;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::filesystem::path Sample(const std::string& name) {
  return std::filesystem::path(QUIXAIR_SOURCE_DIR) / "tests/data" / name;
}

std::string LeadingTag(std::size_t bytes) {
  const std::size_t size = bytes - 10;
  std::string tag = std::string("ID3\x04\0\0", 6);
  for (const unsigned shift : {21U, 14U, 7U, 0U}) tag += static_cast<char>((size >> shift) & 0x7FU);
  // A cover picture may hold anything, what looks like a frame included.
  return tag + BytesOf(Sample("sweep_cbr.mp3")).substr(0, 3000).append(Noise(size, 3)).substr(0, size);
}

}  // namespace quixair::sound
