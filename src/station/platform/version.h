#pragma once

// The program's version as its screens show it.

namespace quixair {

inline constexpr int kVersionMajor = 4;
inline constexpr int kVersionMinor = 0;
inline constexpr int kVersionRevision = 1;

}  // namespace quixair
