#pragma once

// One file while it is open: decoded ahead into a ring on one thread, drained into the output on another,
// started and stopped on a third. Going back to the start is done with a new stream, so frames only ever flow
// forward. A DecodeWorker owns it and destroys it when nobody renders it any more.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "sound/frame_source.h"
#include "sound/sample_ring.h"
#include "station/platform/media.h"

namespace quixair::sound {

class Stream {
 public:
  /// `length_ms` is what Length() tells; the end itself is where the decoder finds it.
  Stream(std::unique_ptr<Decoder> decoder, std::int32_t length_ms);

  // User interface thread; none of these waits.

  void Play() { mode_.store(ChannelMode::kPlaying, std::memory_order_release); }
  void Pause();
  ChannelMode mode() const { return mode_.load(std::memory_order_acquire); }
  std::int32_t length_ms() const { return length_ms_; }
  /// Milliseconds of what was handed to the output; silence of an underrun does not count.
  std::int32_t PositionMs() const;
  /// Whether it still stands at its first frame.
  bool AtFirstFrame() const { return handed_out_.load(std::memory_order_relaxed) == 0; }
  Levels TakeLevels();

  // One decoding thread at a time (whoever made it, then its worker).

  /// Decodes until the ring is full or `most_frames` were added; false when nothing more will ever come.
  bool Fill(std::size_t most_frames);
  /// Asks a running Fill to come to an end soon. Any thread.
  void Abandon() { abandoned_.store(true, std::memory_order_relaxed); }

  // One rendering thread at a time: no lock, no allocation, no system call.

  /// Adds the next frames to `out` when playing. False when frames were missing (an underrun); the item then
  /// goes on with the next call. Handing out the last frame makes the mode kStopped.
  bool MixInto(std::span<StereoFrame> out);

 private:
  std::size_t MixWaiting(std::span<StereoFrame> out);
  void EndPlaying();

  const std::int32_t length_ms_;
  FrameSource source_;
  SampleRing ring_;
  std::atomic<ChannelMode> mode_ = ChannelMode::kStopped;
  std::atomic<bool> all_decoded_ = false;
  std::atomic<bool> at_end_ = false;
  std::atomic<bool> abandoned_ = false;
  std::atomic<std::int64_t> handed_out_ = 0;
  std::atomic<float> peak_left_ = 0;
  std::atomic<float> peak_right_ = 0;
};

}  // namespace quixair::sound
