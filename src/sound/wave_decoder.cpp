#include "sound/wave_decoder.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <vector>

namespace quixair::sound {
namespace {

constexpr int kMostChannels = 8;
constexpr int kLowestRate = 1000;
constexpr int kHighestRate = 768000;
constexpr std::size_t kBlockFrames = 4096;

struct CloseSndfile {
  void operator()(SNDFILE* file) const { sf_close(file); }
};
using SndfileHandle = std::unique_ptr<SNDFILE, CloseSndfile>;

// MPEG frames in a WAV wrapper: the library stops at the first damaged one, so the MPEG decoder takes these.
bool HoldsMpeg(const SF_INFO& info) {
  const int coding = info.format & SF_FORMAT_SUBMASK;
  return coding == SF_FORMAT_MPEG_LAYER_I || coding == SF_FORMAT_MPEG_LAYER_II ||
         coding == SF_FORMAT_MPEG_LAYER_III;
}

SndfileHandle OpenSndfile(const std::filesystem::path& path, SF_INFO& info) {
  info = {};
  SndfileHandle file(sf_open(path.c_str(), SFM_READ, &info));
  const bool usable = file && info.channels >= 1 && info.channels <= kMostChannels && info.frames > 0 &&
                      !HoldsMpeg(info) && info.samplerate >= kLowestRate && info.samplerate <= kHighestRate;
  return usable ? std::move(file) : nullptr;
}

// Where a channel of the file goes. The order is that of WAV files: left, right, centre, bass effects, then
// the rear.
struct Fold {
  float to_left = 0;
  float to_right = 0;
};

constexpr float kBehind = 0.7071068F;  // half the power, for what is shared or stands at the back
constexpr Fold kLeft{1, 0};
constexpr Fold kRight{0, 1};
constexpr Fold kBoth{kBehind, kBehind};
constexpr Fold kRearLeft{kBehind, 0};
constexpr Fold kRearRight{0, kBehind};
constexpr Fold kRearBoth{0.5F, 0.5F};
constexpr Fold kDropped{0, 0};

using FoldRow = std::array<Fold, kMostChannels>;
constexpr std::array<FoldRow, kMostChannels> kFolds = {{
    {Fold{1, 1}},
    {kLeft, kRight},
    {kLeft, kRight, kBoth},
    {kLeft, kRight, kRearLeft, kRearRight},
    {kLeft, kRight, kBoth, kRearLeft, kRearRight},
    {kLeft, kRight, kBoth, kDropped, kRearLeft, kRearRight},
    {kLeft, kRight, kBoth, kDropped, kRearBoth, kRearLeft, kRearRight},
    {kLeft, kRight, kBoth, kDropped, kRearLeft, kRearRight, kRearLeft, kRearRight},
}};

// Scaled so that all channels at full level just fit; mono and stereo stay as they are.
FoldRow FoldFor(int channels) {
  FoldRow row = kFolds[static_cast<std::size_t>(channels - 1)];
  float sum = 0;
  for (const Fold& fold : row) sum += fold.to_left;
  for (Fold& fold : row) fold = {fold.to_left / sum, fold.to_right / sum};
  return row;
}

class WaveDecoder : public Decoder {
 public:
  WaveDecoder(SndfileHandle file, const SF_INFO& info)
      : file_(std::move(file)),
        rate_(info.samplerate),
        channels_(static_cast<std::size_t>(info.channels)),
        folds_(FoldFor(info.channels)),
        samples_(kBlockFrames * channels_) {}

  DecodedBlock Read(std::span<StereoFrame> out) override {
    const auto wanted = static_cast<sf_count_t>(std::min(out.size(), kBlockFrames));
    const sf_count_t got = sf_readf_float(file_.get(), samples_.data(), wanted);
    if (got <= 0) return {};
    const auto frames = static_cast<std::size_t>(got);
    for (std::size_t frame = 0; frame < frames; ++frame) out[frame] = Folded(&samples_[frame * channels_]);
    return {frames, rate_};
  }

 private:
  StereoFrame Folded(const float* samples) const {
    StereoFrame sum;
    for (std::size_t channel = 0; channel < channels_; ++channel) {
      const float sample = Tamed(samples[channel]);
      sum.left += sample * folds_[channel].to_left;
      sum.right += sample * folds_[channel].to_right;
    }
    return {Tamed(sum.left), Tamed(sum.right)};
  }

  SndfileHandle file_;
  int rate_;
  std::size_t channels_;
  FoldRow folds_;
  std::vector<float> samples_;
};

}  // namespace

FileFacts ExamineWave(const std::filesystem::path& path) {
  SF_INFO info;
  if (!OpenSndfile(path, info)) return {};
  const std::int32_t length_ms = MillisecondsOf(info.frames, info.samplerate);
  if (length_ms == 0) return {};
  return {FileKind::kWave, length_ms, false};
}

std::unique_ptr<Decoder> OpenWave(const std::filesystem::path& path) {
  SF_INFO info;
  SndfileHandle file = OpenSndfile(path, info);
  if (!file) return nullptr;
  return std::make_unique<WaveDecoder>(std::move(file), info);
}

}  // namespace quixair::sound
