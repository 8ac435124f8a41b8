// Sound: the CPU that two streams cost, by decoder, and the time from Open to the first sample in the output.

#include <benchmark/benchmark.h>
#include <sndfile.h>

#include <cmath>
#include <ctime>
#include <fstream>
#include <iterator>
#include <numbers>
#include <vector>

#include "bench_station.h"
#include "sound/sound_system.h"

namespace quixair::bench {
namespace {

namespace fs = std::filesystem;
constexpr int kFileSeconds = 240;
constexpr int kOutputRate = 48000;
constexpr std::size_t kBlock = 2048;

enum Kind { kWav, kMp3Cbr, kMp3Vbr };

/// Files of four minutes, made once.
class SoundFiles {
 public:
  SoundFiles() {
    std::string pattern = (fs::temp_directory_path() / "quixair-sound-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
    MakeWav();
    Repeat("sweep_cbr.mp3", Path(kMp3Cbr));
    Repeat("sweep_vbr_without_header.mp3", Path(kMp3Vbr));
  }
  ~SoundFiles() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  SoundFiles(const SoundFiles&) = delete;
  SoundFiles& operator=(const SoundFiles&) = delete;
  fs::path Path(int kind) const {
    return folder_ / (kind == kWav ? "song.wav" : kind == kMp3Cbr ? "cbr.mp3" : "vbr.mp3");
  }

 private:
  void MakeWav() const {
    SF_INFO info{};
    info.samplerate = 44100;
    info.channels = 2;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(Path(kWav).c_str(), SFM_WRITE, &info);
    std::vector<float> second(44100 * 2);
    for (std::size_t i = 0; i < second.size(); ++i) {
      second[i] =
          0.5F * std::sin(static_cast<float>(i / 2) * 440 * 2 * std::numbers::pi_v<float> / 44100 + 1);
    }
    for (int i = 0; i < kFileSeconds; ++i) sf_writef_float(file, second.data(), 44100);
    sf_close(file);
  }
  static void Repeat(const char* sample, const fs::path& target) {
    std::ifstream source(fs::path(QUIXAIR_SOURCE_DIR) / "tests/data" / sample, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(source), {}};
    std::ofstream out(target, std::ios::binary);
    for (int i = 0; i < kFileSeconds / 2; ++i) out << bytes;  // samples of two seconds
    if (!out) throw std::runtime_error("cannot write the samples");
  }

  fs::path folder_;
};

const SoundFiles& Files() {
  static const SoundFiles files;
  return files;
}

double CpuSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// One audio hour of two streams at once: decoded, converted to the output's rate, mixed. Counter: CPU seconds an hour.
void MixTwoStreams(benchmark::State& state) {
  const fs::path path = Files().Path(static_cast<int>(state.range(0)));
  sound::SoundSystem sound({.drive = sound::SoundSystem::Drive::kByHand, .driver = nullptr});
  const auto first = sound.MakePlayer(1);
  const auto second = sound.MakePlayer(2);
  std::vector<sound::StereoFrame> block(kBlock);
  double cpu = 0;
  double seconds = 0;
  for (auto _ : state) {
    first->Open("first", path);
    second->Open("second", path);
    const double start = CpuSeconds();
    first->Play();
    second->Play();
    while (first->Mode() == ChannelMode::kPlaying) {
      sound.RenderByHand(block);
      seconds += static_cast<double>(kBlock) / kOutputRate;
    }
    cpu += CpuSeconds() - start;
  }
  state.counters["cpu_s_per_hour"] = cpu / seconds * 3600;
}
BENCHMARK(MixTwoStreams)->Arg(kWav)->Arg(kMp3Cbr)->Arg(kMp3Vbr)->Unit(benchmark::kMillisecond)->Iterations(2);

/// From Open to the first block that is not silent. `known`: the file was looked through before in this session.
void OpenToFirstSample(benchmark::State& state) {
  const fs::path path = Files().Path(static_cast<int>(state.range(0)));
  const bool known = state.range(1) != 0;
  std::vector<sound::StereoFrame> block(kBlock);
  sound::SoundSystem lasting({.drive = sound::SoundSystem::Drive::kByHand, .driver = nullptr});
  for (auto _ : state) {
    state.PauseTiming();
    auto fresh = known ? nullptr
                       : std::make_unique<sound::SoundSystem>(sound::SoundSystem::Options{
                             .drive = sound::SoundSystem::Drive::kByHand, .driver = nullptr});
    sound::SoundSystem& sound = known ? lasting : *fresh;
    auto player = sound.MakePlayer(1);
    if (known) player->Open("song", path);
    state.ResumeTiming();
    player->Open("song", path);
    player->Play();
    do {
      sound.RenderByHand(block);
    } while (player->TakeLevels().left == 0 && player->Mode() == ChannelMode::kPlaying);
    state.PauseTiming();
    state.counters["file_s"] = player->Length() / 1000.0;
    player.reset();
    fresh.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenToFirstSample)
    ->ArgsProduct({{kWav, kMp3Cbr, kMp3Vbr}, {0, 1}})
    ->ArgNames({"kind", "known"})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

}  // namespace
}  // namespace quixair::bench
