#include "sound/frame_source.h"

#include <soxr.h>

#include <algorithm>

namespace quixair::sound {
namespace {

constexpr std::size_t kBlockFrames = 4096;

std::int64_t ConvertedCount(std::int64_t frames, int rate) {
  return (frames * kMixRate + rate / 2) / rate;
}

}  // namespace

void FrameSource::DeleteConverter::operator()(soxr* converter) const {
  soxr_delete(converter);
}

FrameSource::FrameSource(std::unique_ptr<Decoder> decoder)
    : decoder_(std::move(decoder)), block_(kBlockFrames) {}

FrameSource::~FrameSource() = default;

std::size_t FrameSource::Read(std::span<StereoFrame> out) {
  const std::size_t wanted = out.size();
  while (!out.empty()) {
    if (block_used_ == block_frames_ && !decoder_ended_) DecodeBlock();
    const bool stretch_ends = decoder_ended_ || block_rate_ != stretch_rate_;
    if (stretch_ends && stretch_rate_ != 0) {
      Drain(out);
    } else if (decoder_ended_) {
      break;
    } else if (stretch_rate_ == 0) {
      StartStretch(block_rate_);
    } else {
      Produce(out);
    }
  }
  return wanted - out.size();
}

void FrameSource::DecodeBlock() {
  const DecodedBlock block = decoder_->Read(block_);
  block_used_ = 0;
  block_frames_ = block.frames;
  if (block.frames == 0) {
    decoder_ended_ = true;
    decoder_.reset();
  } else {
    block_rate_ = block.rate;
  }
}

void FrameSource::StartStretch(int rate) {
  stretch_rate_ = rate;
  stretch_taken_ = 0;
  stretch_given_ = 0;
  if (rate == kMixRate) return;
  const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
  const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
  const soxr_runtime_spec_t one_thread = soxr_runtime_spec(1);
  soxr_error_t error = nullptr;
  converter_.reset(soxr_create(rate, kMixRate, 2, &error, &samples, &quality, &one_thread));
  if (error != nullptr || !converter_) GiveUp();
}

void FrameSource::Produce(std::span<StereoFrame>& out) {
  if (converter_) {
    Convert(out);
    return;
  }
  const std::size_t count = std::min(out.size(), block_frames_ - block_used_);
  std::copy_n(block_.begin() + static_cast<std::ptrdiff_t>(block_used_), count, out.begin());
  block_used_ += count;
  out = out.subspan(count);
}

void FrameSource::Convert(std::span<StereoFrame>& out) {
  std::size_t taken = 0;
  std::size_t given = 0;
  const soxr_error_t error = soxr_process(converter_.get(), &block_[block_used_], block_frames_ - block_used_,
                                          &taken, out.data(), out.size(), &given);
  if (error != nullptr) {
    GiveUp();
    return;
  }
  block_used_ += taken;
  stretch_taken_ += static_cast<std::int64_t>(taken);
  stretch_given_ += static_cast<std::int64_t>(given);
  out = out.subspan(given);
}

// Out of memory, in practice: the file ends here, the rest of the program goes on.
void FrameSource::GiveUp() {
  converter_.reset();
  decoder_.reset();
  decoder_ended_ = true;
  block_used_ = block_frames_;
  stretch_rate_ = 0;
}

void FrameSource::Drain(std::span<StereoFrame>& out) {
  if (converter_) {
    const std::int64_t missing = ConvertedCount(stretch_taken_, stretch_rate_) - stretch_given_;
    const std::size_t count =
        std::min(out.size(), static_cast<std::size_t>(std::max<std::int64_t>(missing, 0)));
    std::size_t given = 0;
    if (count > 0) soxr_process(converter_.get(), nullptr, 0, nullptr, out.data(), count, &given);
    // The converter may round the last frame away.
    std::fill_n(out.begin() + static_cast<std::ptrdiff_t>(given), count - given, StereoFrame{});
    stretch_given_ += static_cast<std::int64_t>(count);
    out = out.subspan(count);
    if (static_cast<std::int64_t>(count) < missing) return;
    converter_.reset();
  }
  stretch_rate_ = 0;
}

}  // namespace quixair::sound
