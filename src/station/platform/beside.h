#pragma once

// Work on a thread of its own that whoever began it need not wait for: a disk or a print system that hangs
// holds up nobody. What the work touches is its own or shared with it, for it may outlive its beginner.

#include <chrono>
#include <future>
#include <thread>
#include <utility>

namespace quixair {

/// Unlike that of std::async, the future may be dropped at any time.
template <class Work>
auto Beside(Work work) -> std::future<decltype(work())> {
  std::packaged_task<decltype(work())()> task(std::move(work));
  auto result = task.get_future();
  std::thread(std::move(task)).detach();
  return result;
}

template <class Answer>
bool IsThrough(const std::future<Answer>& work) {
  return work.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace quixair
