#pragma once

// A decoder brought to the mixer's rate. Owned by a stream, called by one thread at a time. The number of
// frames is exact: for each stretch of the file at one rate, round(frames * mixer's rate / file's rate).

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "sound/decoder.h"

struct soxr;

namespace quixair::sound {

class FrameSource {
 public:
  explicit FrameSource(std::unique_ptr<Decoder> decoder);
  ~FrameSource();
  FrameSource(const FrameSource&) = delete;
  FrameSource& operator=(const FrameSource&) = delete;

  /// Fills `out` from its start; fewer frames than asked for only at the end, and from then on none.
  std::size_t Read(std::span<StereoFrame> out);

 private:
  struct DeleteConverter {
    void operator()(soxr* converter) const;
  };

  void DecodeBlock();
  void Produce(std::span<StereoFrame>& out);
  void Convert(std::span<StereoFrame>& out);
  void Drain(std::span<StereoFrame>& out);
  void StartStretch(int rate);
  void GiveUp();

  std::unique_ptr<Decoder> decoder_;
  std::unique_ptr<soxr, DeleteConverter> converter_;  // none while the file has the mixer's rate
  std::vector<StereoFrame> block_;
  std::size_t block_used_ = 0;
  std::size_t block_frames_ = 0;
  int block_rate_ = 0;
  int stretch_rate_ = 0;  // 0 before the first block and after a stretch was drained
  std::int64_t stretch_taken_ = 0;
  std::int64_t stretch_given_ = 0;
  bool decoder_ended_ = false;
};

}  // namespace quixair::sound
