#include "sound/device_feed.h"

#include <soxr.h>

#include <algorithm>
#include <stdexcept>

namespace quixair::sound {
namespace {

constexpr std::size_t kSupplyFrames = 2048;
// The converter's buffers grow to their final size while it runs in; a second of silence is ample.
constexpr int kWarmUpBlocks = 24;

}  // namespace

void DeviceFeed::DeleteConverter::operator()(soxr* converter) const {
  soxr_delete(converter);
}

DeviceFeed::DeviceFeed(Output& output, RenderToken::Owner owner, int device_rate)
    : output_(output), owner_(owner) {
  if (device_rate != kMixRate) StartConverter(device_rate);
}

DeviceFeed::~DeviceFeed() = default;

void DeviceFeed::Feed(std::span<StereoFrame> out, SteadyTime now) {
  frames_asked_.fetch_add(out.size(), std::memory_order_relaxed);
  if (!output_.token().TryEnter(owner_)) {
    std::fill(out.begin(), out.end(), StereoFrame{});
    return;
  }
  std::size_t done = 0;
  if (converter_) {
    now_ = now;
    done = soxr_output(converter_.get(), out.data(), out.size());
  } else {
    output_.RenderBlock(out, now);
    done = out.size();
  }
  output_.token().Leave();
  std::fill(out.begin() + static_cast<std::ptrdiff_t>(done), out.end(), StereoFrame{});
}

void DeviceFeed::StartConverter(int device_rate) {
  const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
  const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
  const soxr_runtime_spec_t one_thread = soxr_runtime_spec(1);
  soxr_error_t error = nullptr;
  converter_.reset(soxr_create(kMixRate, device_rate, 2, &error, &samples, &quality, &one_thread));
  supply_.resize(kSupplyFrames);
  if (error == nullptr) error = soxr_set_input_fn(converter_.get(), &SupplyConverter, this, kSupplyFrames);
  if (error != nullptr) throw std::runtime_error("no rate converter");
  warming_up_ = true;
  std::vector<StereoFrame> unheard(kSupplyFrames);
  for (int block = 0; block < kWarmUpBlocks; ++block)
    soxr_output(converter_.get(), unheard.data(), unheard.size());
  warming_up_ = false;
}

std::size_t DeviceFeed::SupplyConverter(void* self, const void** frames, std::size_t wanted) {
  auto& feed = *static_cast<DeviceFeed*>(self);
  const std::span<StereoFrame> block(feed.supply_.data(), std::min(wanted, feed.supply_.size()));
  if (feed.warming_up_) {
    std::fill(block.begin(), block.end(), StereoFrame{});
  } else {
    feed.output_.RenderBlock(block, feed.now_);
  }
  *frames = block.data();
  return block.size();
}

}  // namespace quixair::sound
