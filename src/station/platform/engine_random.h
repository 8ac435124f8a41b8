#pragma once

// The source of chance in the program and in rehearsals: a 64-bit Mersenne twister.

#include <random>

#include "station/platform/random_source.h"

namespace quixair {

class EngineRandom : public RandomSource {
 public:
  EngineRandom() = default;
  /// A fixed seed makes every run the same.
  explicit EngineRandom(std::uint64_t fixed_seed) : fixed_(true), engine_(fixed_seed) {}

  void Randomize(std::uint64_t clock_value) override {
    if (!fixed_) engine_.seed(clock_value);
  }
  double Uniform() override { return std::generate_canonical<double, 53>(engine_); }

 private:
  bool fixed_ = false;
  std::mt19937_64 engine_;
};

}  // namespace quixair
