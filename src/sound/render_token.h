#pragma once

// Says who renders: the device that is on the air, or the silent output that stands in for it. Exactly one of
// them at any moment, so that no frame is played twice and none is left out. Taking it for a block never
// waits; handing it over waits for a block under way, which is a matter of microseconds. Owned by the output.

#include <atomic>
#include <cstdint>
#include <limits>
#include <thread>

namespace quixair::sound {

class RenderToken {
 public:
  using Owner = std::uint32_t;
  static constexpr Owner kSilence = 0;  // devices count from 1
  /// The end of the program; this one never hands on.
  static constexpr Owner kNobody = std::numeric_limits<Owner>::max() >> 1U;

  /// True when `owner` may render a block now; it then must Leave.
  bool TryEnter(Owner owner) {
    std::uint32_t idle = owner << 1U;
    return state_.compare_exchange_strong(idle, idle | kRendering, std::memory_order_acquire);
  }
  void Leave() { state_.fetch_and(~kRendering, std::memory_order_release); }

  Owner owner() const { return state_.load(std::memory_order_acquire) >> 1U; }

  /// When it returns, `owner` may render and nobody else does.
  void HandTo(Owner owner) {
    for (;;) {
      std::uint32_t idle = state_.load(std::memory_order_relaxed) & ~kRendering;
      if (idle >> 1U == kNobody) return;
      if (state_.compare_exchange_weak(idle, owner << 1U, std::memory_order_acq_rel)) return;
      std::this_thread::yield();
    }
  }

 private:
  static constexpr std::uint32_t kRendering = 1;
  std::atomic<std::uint32_t> state_ = kSilence;
};

}  // namespace quixair::sound
