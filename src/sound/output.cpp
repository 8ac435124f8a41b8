#include "sound/output.h"

#include <algorithm>
#include <array>

namespace quixair::sound {
namespace {

using std::chrono::milliseconds;

constexpr std::size_t kSilentBlock = kMixRate / 100;
constexpr milliseconds kSilentBlockTime{10};
constexpr int kMostBlocksAStep = 10;
// A machine that stood still for longer than this (suspended, stopped in a debugger) goes on from where it
// was.
constexpr std::chrono::seconds kMostCatchUp{5};

}  // namespace

void Output::RenderBlock(std::span<StereoFrame> out, SteadyTime now) {
  mixer_.Render(out);
  next_due_ =
      now + std::chrono::nanoseconds(static_cast<std::int64_t>(out.size()) * 1'000'000'000 / kMixRate);
}

void Output::SilentStep(SteadyTime now) {
  if (!token_.TryEnter(RenderToken::kSilence)) return;
  SteadyTime due = std::max(next_due_.value_or(now), now - kMostCatchUp);
  std::array<StereoFrame, kSilentBlock> unheard;
  for (int block = 0; block < kMostBlocksAStep && due <= now; ++block) {
    mixer_.Render(unheard);
    due += kSilentBlockTime;
  }
  next_due_ = due;
  token_.Leave();
}

}  // namespace quixair::sound
