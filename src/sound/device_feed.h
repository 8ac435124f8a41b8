#pragma once

// What one opened device is fed from, on the device's own thread: the output's blocks while the device is on
// the air, silence before and after. Converts when the device settled on another rate than the mixer's; our
// own converter, since the one built into the device library loses samples. Made and owned by the device
// keeper, before the device starts.

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "sound/output.h"

struct soxr;

namespace quixair::sound {

class DeviceFeed {
 public:
  DeviceFeed(Output& output, RenderToken::Owner owner, int device_rate);
  ~DeviceFeed();
  DeviceFeed(const DeviceFeed&) = delete;
  DeviceFeed& operator=(const DeviceFeed&) = delete;

  /// Fills all of `out` at the device's rate. The device's thread: no lock, no allocation, no log.
  void Feed(std::span<StereoFrame> out, SteadyTime now);

  /// How many frames the device has asked for, on the air or not: its sign of life.
  std::uint64_t frames_asked() const { return frames_asked_.load(std::memory_order_relaxed); }
  RenderToken::Owner owner() const { return owner_; }

 private:
  struct DeleteConverter {
    void operator()(soxr* converter) const;
  };

  void StartConverter(int device_rate);
  static std::size_t SupplyConverter(void* self, const void** frames, std::size_t wanted);

  Output& output_;
  const RenderToken::Owner owner_;
  std::unique_ptr<soxr, DeleteConverter> converter_;
  std::vector<StereoFrame> supply_;
  bool warming_up_ = false;
  SteadyTime now_;  // of the call under way
  std::atomic<std::uint64_t> frames_asked_ = 0;
};

}  // namespace quixair::sound
