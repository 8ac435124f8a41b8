#pragma once

// The machine's sound input as a recorder sees it, so that the recorder's rules can be tried against inputs
// that are missing, die and hang on demand. Every call may take seconds when a sound server hangs; only a
// recorder's own thread makes them.

#include <memory>
#include <span>

#include "sound/stereo_frame.h"

namespace quixair::sound {

/// Takes what an input captures. Called on a thread of the device's own, which must never wait: no lock, no
/// allocation, no file.
class InputSink {
 public:
  virtual void Take(std::span<const StereoFrame> frames) = 0;

 protected:
  ~InputSink() = default;
};

/// An open input; destroying it closes it, after which the sink is not called any more.
class InputDevice {
 public:
  virtual ~InputDevice() = default;
  /// False once the system reports it gone. A hung device is connected.
  virtual bool Connected() const = 0;
};

class InputDriver {
 public:
  virtual ~InputDriver() = default;
  /// The system's default input at exactly `rate` frames a second, running; none when it cannot be opened.
  virtual std::unique_ptr<InputDevice> Open(int rate, InputSink& sink) = 0;
};

}  // namespace quixair::sound
