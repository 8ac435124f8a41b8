#include "sound/mixer.h"

#include <algorithm>

namespace quixair::sound {

void Mixer::Render(std::span<StereoFrame> out) {
  // In one total order with the slots: a renderer that still saw the old stream had made the count odd
  // before.
  passes_.fetch_add(1);
  std::fill(out.begin(), out.end(), StereoFrame{});
  for (std::atomic<Stream*>& slot : slots_) {
    Stream* const stream = slot.load();
    if (stream != nullptr && !stream->MixInto(out)) underruns_.fetch_add(1, std::memory_order_relaxed);
  }
  for (StereoFrame& frame : out) frame = {Tamed(frame.left), Tamed(frame.right)};
  passes_.fetch_add(1);
}

}  // namespace quixair::sound
