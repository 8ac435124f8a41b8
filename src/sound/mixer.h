#pragma once

// Sums the streams on the air into blocks for the output. It knows no device, so a test renders block by
// block and looks at every sample. Owned by the sound system. Slots are filled and emptied on the user
// interface thread while another thread renders; a stream taken out may be destroyed once the mark taken
// after it has passed.

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>

#include "sound/stream.h"

namespace quixair::sound {

class Mixer {
 public:
  static constexpr std::size_t kSlots = 32;

  /// User interface thread: puts `stream`, or nothing, in a slot, in place of what was there.
  void SetSlot(std::size_t slot, Stream* stream) { slots_[slot].store(stream); }

  /// A point in time after SetSlot. Once Passed, no renderer can still hold what had been in a slot before
  /// it.
  std::uint64_t Mark() const { return passes_.load(); }
  bool Passed(std::uint64_t mark) const { return (mark & 1U) == 0 || passes_.load() != mark; }

  /// One thread at a time, see RenderToken: no lock, no allocation, no system call. Overwrites all of `out`,
  /// within +-1.
  void Render(std::span<StereoFrame> out);

  /// How often a playing stream had nothing decoded in time.
  std::uint64_t underruns() const { return underruns_.load(std::memory_order_relaxed); }

 private:
  std::array<std::atomic<Stream*>, kSlots> slots_{};
  std::atomic<std::uint64_t> passes_ = 0;  // odd while a block is rendered
  std::atomic<std::uint64_t> underruns_ = 0;
};

}  // namespace quixair::sound
