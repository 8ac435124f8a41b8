#include "sound/stream.h"

#include <algorithm>
#include <cmath>

namespace quixair::sound {
namespace {

// 2.7 seconds: what a busy disk or a starved decoder may cost before the air hears it.
constexpr std::size_t kAheadFrames = 131072;

void Raise(std::atomic<float>& peak, float value) {
  float seen = peak.load(std::memory_order_relaxed);
  while (value > seen && !peak.compare_exchange_weak(seen, value, std::memory_order_relaxed)) {
  }
}

}  // namespace

Stream::Stream(std::unique_ptr<Decoder> decoder, std::int32_t length_ms)
    : length_ms_(length_ms), source_(std::move(decoder)), ring_(kAheadFrames) {}

void Stream::Pause() {
  // The renderer may reach the end at the same moment; an item that ended stays ended.
  ChannelMode playing = ChannelMode::kPlaying;
  mode_.compare_exchange_strong(playing, ChannelMode::kPaused, std::memory_order_acq_rel);
}

std::int32_t Stream::PositionMs() const {
  // At its end an item has come to its length, whatever its header or the rounding of rates said before.
  if (at_end_.load(std::memory_order_relaxed)) return length_ms_;
  return std::min(MillisecondsOf(handed_out_.load(std::memory_order_relaxed), kMixRate), length_ms_);
}

Levels Stream::TakeLevels() {
  return {peak_left_.exchange(0, std::memory_order_relaxed),
          peak_right_.exchange(0, std::memory_order_relaxed)};
}

bool Stream::Fill(std::size_t most_frames) {
  if (all_decoded_.load(std::memory_order_relaxed)) return false;
  while (most_frames > 0 && !abandoned_.load(std::memory_order_relaxed)) {
    std::span<StereoFrame> room = ring_.Room();
    if (room.empty()) return true;
    room = room.first(std::min({room.size(), most_frames, std::size_t{4096}}));
    const std::size_t got = source_.Read(room);
    ring_.Commit(got);
    if (got < room.size()) {
      all_decoded_.store(true, std::memory_order_release);
      return false;
    }
    most_frames -= got;
  }
  return true;
}

bool Stream::MixInto(std::span<StereoFrame> out) {
  if (mode() != ChannelMode::kPlaying) return true;
  // Asked before the ring is looked at: what was decoded last is then surely seen in it.
  const bool all_decoded = all_decoded_.load(std::memory_order_acquire);
  std::size_t mixed = MixWaiting(out);
  mixed += MixWaiting(out.subspan(mixed));  // the part behind the end of the ring's memory
  handed_out_.fetch_add(static_cast<std::int64_t>(mixed), std::memory_order_relaxed);
  if (all_decoded && ring_.size() == 0) {
    EndPlaying();
    return true;
  }
  return mixed == out.size();
}

std::size_t Stream::MixWaiting(std::span<StereoFrame> out) {
  const std::span<const StereoFrame> waiting = ring_.Waiting();
  const std::size_t count = std::min(waiting.size(), out.size());
  float left = 0;
  float right = 0;
  for (std::size_t index = 0; index < count; ++index) {
    const StereoFrame frame = waiting[index];
    out[index].left += frame.left;
    out[index].right += frame.right;
    left = std::max(left, std::abs(frame.left));
    right = std::max(right, std::abs(frame.right));
  }
  Raise(peak_left_, left);
  Raise(peak_right_, right);
  ring_.Release(count);
  return count;
}

void Stream::EndPlaying() {
  at_end_.store(true, std::memory_order_relaxed);
  ChannelMode playing = ChannelMode::kPlaying;
  mode_.compare_exchange_strong(playing, ChannelMode::kStopped, std::memory_order_acq_rel);
}

}  // namespace quixair::sound
