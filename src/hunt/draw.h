#pragma once

// The hunter's dice: the same draws from the same seed on every machine.

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace quixair::hunt {

class Draw {
 public:
  explicit Draw(std::uint64_t seed) : engine_(seed * 2654435761U + 1) {}

  /// 0 up to `count` - 1.
  int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  int Between(int least, int most) { return least + Below(most - least + 1); }
  bool Chance(int percent) { return Below(100) < percent; }
  template <class T>
  const T& Of(const std::vector<T>& choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
  }
  std::string Of(std::initializer_list<const char*> choices) {
    return *(choices.begin() + Below(static_cast<int>(choices.size())));
  }
  /// Of weights, the number of the one that is drawn.
  std::size_t Weighted(const std::vector<int>& weights) {
    int sum = 0;
    for (const int weight : weights) sum += weight;
    int drawn = Below(sum);
    std::size_t which = 0;
    while (drawn >= weights[which]) drawn -= weights[which++];
    return which;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace quixair::hunt
