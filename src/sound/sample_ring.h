#pragma once

// A queue of stereo frames between one thread that decodes and one that renders. Neither ever waits for the
// other, and nothing is allocated after construction. Owned by a stream.

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <span>
#include <vector>

#include "sound/stereo_frame.h"

namespace quixair::sound {

class SampleRing {
 public:
  /// Room for at least `frames`.
  explicit SampleRing(std::size_t frames) : frames_(std::bit_ceil(frames)), mask_(frames_.size() - 1) {}

  /// Producer: the free room up to the end of the memory; fill it from the start, then Commit what was
  /// filled.
  std::span<StereoFrame> Room() {
    const std::size_t written = written_.load(std::memory_order_relaxed);
    const std::size_t room = frames_.size() - (written - read_.load(std::memory_order_acquire));
    const std::size_t start = written & mask_;
    return {frames_.data() + start, std::min(room, frames_.size() - start)};
  }
  void Commit(std::size_t frames) {
    written_.store(written_.load(std::memory_order_relaxed) + frames, std::memory_order_release);
  }

  /// Consumer: the frames waiting, up to the end of the memory; use some from the start, then Release these.
  std::span<const StereoFrame> Waiting() const {
    const std::size_t read = read_.load(std::memory_order_relaxed);
    const std::size_t waiting = written_.load(std::memory_order_acquire) - read;
    const std::size_t start = read & mask_;
    return {frames_.data() + start, std::min(waiting, frames_.size() - start)};
  }
  void Release(std::size_t frames) {
    read_.store(read_.load(std::memory_order_relaxed) + frames, std::memory_order_release);
  }

  std::size_t capacity() const { return frames_.size(); }
  /// Exact for the consumer when it says empty to the producer's last word; a glimpse for anybody else.
  std::size_t size() const {
    const std::size_t read = read_.load(std::memory_order_acquire);
    return written_.load(std::memory_order_acquire) - read;
  }

 private:
  std::vector<StereoFrame> frames_;
  std::size_t mask_;
  alignas(64) std::atomic<std::size_t> written_ = 0;  // both count on for ever and wrap together
  alignas(64) std::atomic<std::size_t> read_ = 0;
};

}  // namespace quixair::sound
