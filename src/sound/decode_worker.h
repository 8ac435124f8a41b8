#pragma once

// Keeps the rings of streams full, and destroys streams that were taken off the air once no renderer holds
// them. Each player has a worker of its own, so that a file on a dead network drive stalls nobody but itself.
// Functions are called on the user interface thread unless they say otherwise, and do not wait for decoding.

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "sound/mixer.h"
#include "sound/stream.h"

namespace quixair::sound {

class DecodeWorker {
 public:
  /// Without a thread somebody calls WorkOnce by hand.
  DecodeWorker(const Mixer& mixer, bool with_thread);
  /// Every stream must be out of the mixer. Waits for a read under way.
  ~DecodeWorker();
  DecodeWorker(const DecodeWorker&) = delete;
  DecodeWorker& operator=(const DecodeWorker&) = delete;

  /// Takes it over; the pointer stays good until Retire.
  Stream* Adopt(std::unique_ptr<Stream> stream);
  /// After it was taken out of the mixer.
  void Retire(Stream* stream);

  /// Fills all rings and clears away what can go. The worker's own thread, or by hand when it has none. True
  /// when there may soon be more to do.
  bool WorkOnce();

 private:
  struct Charge {
    std::unique_ptr<Stream> stream;
    bool retired = false;
    std::uint64_t mark = 0;
  };

  void Run();
  void ClearAway();

  const Mixer& mixer_;
  std::mutex mutex_;
  std::condition_variable something_to_do_;
  std::vector<Charge> charges_;
  bool news_ = false;
  bool stopping_ = false;
  std::vector<Stream*> to_fill_;  // the working thread's own
  std::thread thread_;
};

}  // namespace quixair::sound
