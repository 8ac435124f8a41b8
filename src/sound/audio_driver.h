#pragma once

// The machine's sound as the device keeper sees it, so that the keeper's rules can be tried against devices
// that die, hang and return on demand. Every call may take seconds when a sound server hangs; only the
// keeper's own thread makes them.

#include <memory>

#include "sound/device_feed.h"
#include "sound/input_driver.h"

namespace quixair::sound {

/// An open device; destroying it closes it, after which the feed is not called any more.
class AudioDevice {
 public:
  virtual ~AudioDevice() = default;
  /// Frames a second, stereo float.
  virtual int rate() const = 0;
  /// From now on `feed` is asked for frames, on a thread of the device's own.
  virtual void Start(DeviceFeed& feed) = 0;
  /// False once the system reports it gone. A hung device is connected.
  virtual bool Connected() const = 0;
};

class AudioDriver {
 public:
  virtual ~AudioDriver() = default;
  /// Looks for the machine's sound system; false when there is none. Paired with Stop, with no device open
  /// then.
  virtual bool Start() = 0;
  virtual void Stop() = 0;
  /// False when this one was settled on for want of a better, which only a new Start would find.
  virtual bool FirstChoice() const = 0;
  /// True when a second device cannot be open beside the first.
  virtual bool OneDeviceOnly() const = 0;
  /// True when it works but has no loudspeaker behind it.
  virtual bool LeadsNowhere() const = 0;
  /// The machine's chosen device, not yet started; none when it cannot be opened.
  virtual std::unique_ptr<AudioDevice> Open() = 0;
};

/// The real one, and beside it the machine's input. Both stand on one library, which each of their calls has to
/// itself; when the output looks for a better sound system, the inputs that were open are gone. The driver list
/// is pinned to the two that were found dependable; the library's own environment variables still overrule it.
struct SdlDrivers {
  std::unique_ptr<AudioDriver> output;
  std::unique_ptr<InputDriver> input;
};
SdlDrivers MakeSdlDrivers();

}  // namespace quixair::sound
