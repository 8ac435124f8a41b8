#pragma once

// Counts what a stretch of code asks of the heap, C libraries included, on the thread that made the counter.

namespace quixair::sound {

class AllocationCounter {
 public:
  AllocationCounter();
  ~AllocationCounter();
  AllocationCounter(const AllocationCounter&) = delete;
  AllocationCounter& operator=(const AllocationCounter&) = delete;

  /// Memory taken, resized or given back since the counter was made.
  int count() const;
  /// False under the sanitizers, which have a heap of their own.
  static bool Works();
};

}  // namespace quixair::sound
