#include "sound/decoder.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <functional>

#include "sound/frame_source.h"
#include "sound/length_cache.h"
#include "sound/sound_files.h"

namespace quixair::sound {
namespace {

std::vector<StereoFrame> DecodedAtMixRate(const std::filesystem::path& path) {
  std::vector<StereoFrame> all;
  std::unique_ptr<Decoder> decoder = OpenDecoder(path, ExamineFile(path));
  if (!decoder) return all;
  FrameSource source(std::move(decoder));
  std::vector<StereoFrame> block(1000);
  while (const std::size_t got = source.Read(block)) {
    all.insert(all.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(got));
  }
  return all;
}

float Peak(const std::vector<StereoFrame>& frames) {
  float peak = 0;
  for (const StereoFrame& frame : frames)
    peak = std::max({peak, std::abs(frame.left), std::abs(frame.right)});
  return peak;
}

// How far from a sine of 1000 Hz at half level, the edges left out.
double WorstDistanceFromSine(const std::vector<StereoFrame>& frames) {
  const std::vector<float> sine = Sine(frames.size(), kMixRate, 1);
  double worst = 0;
  for (std::size_t at = 500; at + 500 < frames.size(); ++at) {
    worst = std::max({worst, std::abs(static_cast<double>(frames[at].left - sine[at])),
                      std::abs(static_cast<double>(frames[at].right - sine[at]))});
  }
  return worst;
}

struct WaveCase {
  const char* name;
  int format;
  int rate;
  int channels;
  double tolerance;  // quantisation, or what the coding costs
};

class WaveFormats : public testing::TestWithParam<WaveCase> {};

TEST_P(WaveFormats, GivesTheSineInExactLength) {
  const WaveCase& wave = GetParam();
  const SoundFiles files;
  const auto frames = static_cast<std::size_t>(wave.rate) + 7;
  const auto path = files.Wave("misnamed.mp3", Sine(frames, wave.rate, wave.channels), wave.rate,
                               wave.channels, wave.format);
  const std::vector<StereoFrame> decoded = DecodedAtMixRate(path);
  SF_INFO info{};
  sf_close(sf_open(path.c_str(), SFM_READ, &info));  // ADPCM fills up its last block
  EXPECT_EQ(ExamineFile(path).length_ms, std::lround(1000.0 * static_cast<double>(info.frames) / wave.rate));
  EXPECT_EQ(decoded.size(), std::lround(static_cast<double>(info.frames) * kMixRate / wave.rate));
  ASSERT_GE(info.frames, static_cast<sf_count_t>(frames));
  const std::vector<StereoFrame> sounding(decoded.begin(), decoded.begin() + kMixRate);
  EXPECT_LT(WorstDistanceFromSine(sounding), wave.tolerance);
}

constexpr int kWav = SF_FORMAT_WAV;
INSTANTIATE_TEST_SUITE_P(All, WaveFormats,
                         testing::Values(WaveCase{"Pcm8", kWav | SF_FORMAT_PCM_U8, 48000, 2, 0.009},
                                         WaveCase{"Pcm16", kWav | SF_FORMAT_PCM_16, 48000, 2, 4e-5},
                                         WaveCase{"Pcm24", kWav | SF_FORMAT_PCM_24, 48000, 2, 1e-6},
                                         WaveCase{"Pcm32", kWav | SF_FORMAT_PCM_32, 48000, 2, 1e-6},
                                         WaveCase{"Float", kWav | SF_FORMAT_FLOAT, 48000, 2, 1e-6},
                                         WaveCase{"Double", kWav | SF_FORMAT_DOUBLE, 48000, 2, 1e-6},
                                         WaveCase{"ImaAdpcm", kWav | SF_FORMAT_IMA_ADPCM, 48000, 2, 0.02},
                                         WaveCase{"MsAdpcm", kWav | SF_FORMAT_MS_ADPCM, 48000, 2, 0.02},
                                         WaveCase{"Rf64", SF_FORMAT_RF64 | SF_FORMAT_PCM_16, 48000, 2, 4e-5},
                                         WaveCase{"Aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 48000, 2, 4e-5},
                                         WaveCase{"Mono", kWav | SF_FORMAT_PCM_16, 48000, 1, 4e-5},
                                         WaveCase{"SixChannels", kWav | SF_FORMAT_PCM_16, 48000, 6, 4e-5},
                                         WaveCase{"EightChannels", kWav | SF_FORMAT_PCM_16, 48000, 8, 4e-5},
                                         WaveCase{"Rate44100", kWav | SF_FORMAT_PCM_16, 44100, 2, 1e-4},
                                         WaveCase{"Rate22050Mono", kWav | SF_FORMAT_PCM_16, 22050, 1, 1e-4},
                                         WaveCase{"Rate8000Mono", kWav | SF_FORMAT_PCM_16, 8000, 1, 1e-4},
                                         WaveCase{"Rate96000", kWav | SF_FORMAT_PCM_24, 96000, 2, 1e-4}),
                         [](const auto& tested) { return std::string(tested.param.name); });

// Sizes of the samples are known from how they were made: two seconds at 44.1 kHz, with the coder's own
// padding of 1152 frames a piece where no note on it came with the file.
struct MpegCase {
  const char* name;
  std::function<std::string()> bytes;
  std::int32_t length_ms;
  std::int32_t tolerance_ms;
};

std::string Cbr() {
  return BytesOf(Sample("sweep_cbr.mp3"));
}

std::string Damaged(const char* name, std::size_t at, std::size_t count) {
  std::string bytes = BytesOf(Sample(name));
  return bytes.replace(at, count, Noise(count, 11));
}

std::string InWaveWrapper(const std::string& mpeg) {
  const auto number = [](std::uint32_t value, std::size_t bytes) {
    return std::string(reinterpret_cast<const char*>(&value), bytes);
  };
  const std::string format = number(0x55, 2) + number(2, 2) + number(44100, 4) + number(12000, 4) +
                             number(1, 2) + number(0, 2) + number(12, 2) + number(1, 2) + number(2, 4) +
                             number(313, 2) + number(1, 2) + number(1393, 2);
  const std::string body = "WAVEfmt " + number(static_cast<std::uint32_t>(format.size()), 4) + format +
                           "data" + number(static_cast<std::uint32_t>(mpeg.size()), 4) + mpeg;
  return "RIFF" + number(static_cast<std::uint32_t>(body.size()), 4) + body;
}

const std::vector<MpegCase>& MpegCases() {
  static const std::vector<MpegCase> cases = {
      {"ConstantRate", Cbr, 2000, 0},
      {"VariableRate", [] { return BytesOf(Sample("sweep_vbr.mp3")); }, 2000, 0},
      {"VariableRateWithoutHeader", [] { return BytesOf(Sample("sweep_vbr_without_header.mp3")); }, 2038, 0},
      {"MonoAt22050", [] { return BytesOf(Sample("sweep_mono_22050.mp3")); }, 2064, 0},
      {"SmallTag", [] { return LeadingTag(400) + Cbr(); }, 2000, 0},
      {"TagOf5Megabytes", [] { return LeadingTag(5'300'000) + Cbr(); }, 2000, 0},
      {"TwoTags", [] { return LeadingTag(3'000'000) + LeadingTag(2'500'000) + Cbr(); }, 2000, 0},
      {"JunkBefore", [] { return Noise(20'000, 4) + Cbr(); }, 2000, 80},
      {"JunkBehind", [] { return Cbr() + std::string(3000, 'x'); }, 2000, 80},
      {"CutInTheMiddle", [] { return Cbr().substr(0, Cbr().size() / 2); }, 1010, 30},
      {"DamagedInTheMiddle", [] { return Damaged("sweep_cbr.mp3", 12'000, 2'400); }, 1840, 120},
      {"DamagedWithoutHeader", [] { return Damaged("sweep_vbr_without_header.mp3", 5'000, 1'000); }, 1900,
       130},
      {"TheSameTwiceInOneFile", [] { return Cbr() + Cbr(); }, 4100, 60},
      {"TwoRatesInOneFile", [] { return BytesOf(Sample("sweep_mono_22050.mp3")) + Cbr(); }, 4125, 60},
      {"WrappedAsWave", [] { return InWaveWrapper(Cbr()); }, 2000, 0},
      {"WrappedAsWaveAndDamaged", [] { return InWaveWrapper(Damaged("sweep_cbr.mp3", 12'000, 2'400)); }, 1840,
       120},
      {"OnlyThreeFrames", [] { return Cbr().substr(313, 3 * 313); }, 78, 27},
  };
  return cases;
}

class MpegFiles : public testing::TestWithParam<MpegCase> {};

TEST_P(MpegFiles, PlaysAllThatIsThereAndTellsItsLength) {
  const SoundFiles files;
  const auto path = files.Write("misnamed.wav", GetParam().bytes());
  const std::int32_t length_ms = ExamineFile(path).length_ms;
  EXPECT_NEAR(length_ms, GetParam().length_ms, GetParam().tolerance_ms);
  const std::vector<StereoFrame> decoded = DecodedAtMixRate(path);
  EXPECT_NEAR(static_cast<double>(decoded.size()) * 1000 / kMixRate, length_ms, 1.0);
  EXPECT_GT(Peak(decoded), 0.3F);
  EXPECT_LE(Peak(decoded), 1.0F);
}

INSTANTIATE_TEST_SUITE_P(All, MpegFiles, testing::ValuesIn(MpegCases()),
                         [](const auto& tested) { return std::string(tested.param.name); });

struct UnplayableCase {
  const char* name;
  std::function<std::string()> bytes;
};

const std::vector<UnplayableCase>& UnplayableCases() {
  static const std::vector<UnplayableCase> cases = {
      {"Empty", [] { return std::string(); }},
      {"OneByte", [] { return std::string("R"); }},
      {"Text", [] { return std::string(80'000, 'a') + "\r\n"; }},
      {"Noise", [] { return Noise(60'000'000, 1); }},
      {"Zeros", [] { return std::string(60'000'000, '\0'); }},
      {"NoiseWithStrayFrames",
       [] { return Noise(100'000, 2) + Cbr().substr(313, 2 * 313) + Noise(5'000'000, 3); }},
      {"OnlyATag", [] { return LeadingTag(5'000'000); }},
      {"WaveHeaderWithoutData",
       [] {
         const SoundFiles files;
         return BytesOf(files.Wave("empty.wav", {}, 48000, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16));
       }},
      {"NineChannels",
       [] {
         const SoundFiles files;
         return BytesOf(
             files.Wave("nine.wav", Sine(4800, 48000, 9), 48000, 9, SF_FORMAT_WAV | SF_FORMAT_PCM_16));
       }},
      {"RiffMagicAndNoise", [] { return "RIFF" + Noise(100'000, 8); }},
  };
  return cases;
}

class UnplayableFiles : public testing::TestWithParam<UnplayableCase> {};

TEST_P(UnplayableFiles, AreToldQuickly) {
  const SoundFiles files;
  const auto path = files.Write("thing.mp3", GetParam().bytes());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ExamineFile(path).length_ms, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  EXPECT_EQ(OpenDecoder(path, ExamineFile(path)), nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, UnplayableFiles, testing::ValuesIn(UnplayableCases()),
                         [](const auto& tested) { return std::string(tested.param.name); });

struct LyingHeaderCase {
  const char* name;
  std::uint32_t claimed_bytes;
  std::size_t kept_bytes;  // of the 40000 that the file had
};

TEST(WaveFiles, ALyingHeaderGivesWhatIsReallyThere) {
  constexpr std::size_t kHeader = 44;
  const std::vector<StereoFrame> frames = UniqueFrames(10'000, 5);
  for (const LyingHeaderCase& lie : {LyingHeaderCase{"two gigabytes", 0x7FFFFFF0U, 40'000},
                                     LyingHeaderCase{"the largest number", 0xFFFFFFFFU, 40'000},
                                     LyingHeaderCase{"cut in the middle", 40'000U, 20'000}}) {
    const SoundFiles files;
    std::string bytes = BytesOf(files.Wave("good.wav", frames)).substr(0, kHeader + lie.kept_bytes);
    std::memcpy(&bytes[kHeader - 4], &lie.claimed_bytes, 4);
    const std::vector<StereoFrame> decoded = DecodedAtMixRate(files.Write("lying.wav", bytes));
    const auto kept = static_cast<std::ptrdiff_t>(lie.kept_bytes / 4);
    EXPECT_EQ(Difference(decoded, {frames.begin(), frames.begin() + kept}), "") << lie.name;
  }
}

TEST(WaveFiles, WildFloatsAreTamed) {
  const SoundFiles files;
  std::vector<float> samples = {5000.0F, -5000.0F, NAN, 0.25F, INFINITY, -INFINITY, 0.5F, -0.5F};
  samples.resize(64);
  const auto path = files.Wave("wild.wav", samples, 48000, 2, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  const std::vector<StereoFrame> decoded = DecodedAtMixRate(path);
  ASSERT_GE(decoded.size(), 4U);
  EXPECT_EQ(decoded[0], (StereoFrame{1, -1}));
  EXPECT_EQ(decoded[1], (StereoFrame{0, 0.25F}));
  EXPECT_EQ(decoded[2], (StereoFrame{1, -1}));
  EXPECT_EQ(decoded[3], (StereoFrame{0.5F, -0.5F}));
}

TEST(WaveFiles, ChannelsKeepTheirSide) {
  const SoundFiles files;
  std::vector<float> samples;
  for (int frame = 0; frame < 480; ++frame) samples.insert(samples.end(), {0.5F, 0, 0, 0, 0, 0.25F});
  const auto decoded =
      DecodedAtMixRate(files.Wave("six.wav", samples, 48000, 6, SF_FORMAT_WAV | SF_FORMAT_FLOAT));
  ASSERT_EQ(decoded.size(), 480U);
  EXPECT_NEAR(decoded[9].left, 0.5 / (1 + 2 * std::sqrt(0.5)), 1e-5);
  EXPECT_NEAR(decoded[9].right, 0.25 * std::sqrt(0.5) / (1 + 2 * std::sqrt(0.5)), 1e-5);
}

TEST(LengthCacheTest, LooksAgainOnlyAtAFileThatChanged) {
  const SoundFiles files;
  const auto path = files.Wave("song.wav", UniqueFrames(48'000, 1));
  LengthCache cache;
  EXPECT_EQ(cache.LengthMs(path), 1000);
  EXPECT_EQ(cache.LengthMs(files.Path("")), 0) << "a folder";

  const auto changed = std::filesystem::last_write_time(path);
  const auto size = std::filesystem::file_size(path);
  files.Write("song.wav", std::string(size, 'x'));
  std::filesystem::last_write_time(path, changed);
  EXPECT_EQ(cache.LengthMs(path), 1000) << "looked at a file that counts as the same";

  std::filesystem::last_write_time(path, changed + std::chrono::seconds(2));
  EXPECT_EQ(cache.LengthMs(path), 0) << "did not look at a file with a new time";
  files.Wave("song.wav", UniqueFrames(96'000, 1));
  EXPECT_EQ(cache.LengthMs(path), 2000);
}

}  // namespace
}  // namespace quixair::sound
