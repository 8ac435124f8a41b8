#pragma once

// The one source of chance. A draw is uniform over its rows; there are no weights.

#include <cstdint>

namespace quixair {

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// Seeds from the clock at the start of a run; a source that was given a seed of its own keeps it.
  virtual void Randomize(std::uint64_t clock_value) = 0;
  /// Uniform from 0 up to, not including, 1.
  virtual double Uniform() = 0;

  /// A row from 1 to `rows`.
  int Draw(int rows) { return static_cast<int>(static_cast<double>(rows) * Uniform()) + 1; }
};

}  // namespace quixair
