#include "sound/decode_worker.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <limits>

namespace quixair::sound {
namespace {

constexpr std::chrono::milliseconds kBetweenLooks{50};
constexpr std::size_t kAsMuchAsFits = std::numeric_limits<std::size_t>::max();

}  // namespace

DecodeWorker::DecodeWorker(const Mixer& mixer, bool with_thread) : mixer_(mixer) {
  if (with_thread) thread_ = std::thread([this] { Run(); });
}

DecodeWorker::~DecodeWorker() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
    for (Charge& charge : charges_) {
      charge.stream->Abandon();
      if (charge.retired) continue;
      charge.retired = true;
      charge.mark = mixer_.Mark();
    }
  }
  something_to_do_.notify_one();
  if (thread_.joinable()) thread_.join();
  // A renderer that came in before the last stream left its slot is gone within the block.
  for (ClearAway(); !charges_.empty(); ClearAway()) std::this_thread::yield();
}

Stream* DecodeWorker::Adopt(std::unique_ptr<Stream> stream) {
  Stream* const adopted = stream.get();
  {
    const std::lock_guard lock(mutex_);
    charges_.push_back({std::move(stream)});
    news_ = true;
  }
  something_to_do_.notify_one();
  return adopted;
}

void DecodeWorker::Retire(Stream* stream) {
  {
    const std::lock_guard lock(mutex_);
    for (Charge& charge : charges_) {
      if (charge.stream.get() != stream) continue;
      charge.retired = true;
      charge.mark = mixer_.Mark();
      stream->Abandon();
    }
    news_ = true;
  }
  something_to_do_.notify_one();
}

bool DecodeWorker::WorkOnce() {
  to_fill_.clear();
  {
    const std::lock_guard lock(mutex_);
    for (const Charge& charge : charges_) {
      if (!charge.retired) to_fill_.push_back(charge.stream.get());
    }
  }
  // Unlocked: a slow file must not hold up the user interface. Only this thread destroys streams.
  bool more = false;
  for (Stream* stream : to_fill_) more = stream->Fill(kAsMuchAsFits) || more;
  ClearAway();
  return more;
}

void DecodeWorker::ClearAway() {
  std::vector<Charge> done;
  {
    const std::lock_guard lock(mutex_);
    const auto keep = [this](const Charge& charge) { return !charge.retired || !mixer_.Passed(charge.mark); };
    const auto first_done = std::stable_partition(charges_.begin(), charges_.end(), keep);
    std::move(first_done, charges_.end(), std::back_inserter(done));
    charges_.erase(first_done, charges_.end());
  }
}

void DecodeWorker::Run() {
  for (;;) {
    const bool more = WorkOnce();
    std::unique_lock lock(mutex_);
    const auto roused = [this] { return news_ || stopping_; };
    const bool some_retired =
        std::any_of(charges_.begin(), charges_.end(), [](const Charge& charge) { return charge.retired; });
    if (more || some_retired) {
      something_to_do_.wait_for(lock, kBetweenLooks, roused);
    } else {
      something_to_do_.wait(lock, roused);
    }
    if (stopping_) return;
    news_ = false;
  }
}

}  // namespace quixair::sound
