#pragma once

// The counters and histories from which each next item is decided. A run begins with a fresh one.

#include <string>
#include <string_view>
#include <vector>

namespace quixair {

/// The ids played, in slots. Songs and spots use their position differently: for songs it is the last slot in
/// use, for spots the next free one.
class PlayHistory {
 public:
  /// Slots from 1 to `capacity`.
  explicit PlayHistory(int capacity) : slots_(static_cast<std::size_t>(capacity) + 1), capacity_(capacity) {}

  int position() const { return position_; }
  int capacity() const { return capacity_; }
  const std::string& slot(int number) const { return slots_.at(static_cast<std::size_t>(number)); }
  void SetSlot(int number, std::string_view id) { slots_.at(static_cast<std::size_t>(number)) = id; }
  void Advance() { ++position_; }

  /// Empties slots 1 to `last` and goes back to position 1.
  void Clear(int last) {
    for (int number = 1; number <= last && number <= capacity_; ++number) SetSlot(number, {});
    position_ = 1;
  }

  /// Whether the id stands in slots 1 to the position; `compared` grows by the slots looked at.
  bool Contains(std::string_view id, int& compared) const {
    for (int number = 1; number <= position_; ++number) {
      ++compared;
      if (slot(number) == id) return true;
    }
    return false;
  }

 private:
  std::vector<std::string> slots_;
  int capacity_;
  int position_ = 1;
};

struct RotationState {
  static constexpr int kMusicHistorySlots = 2500;
  static constexpr int kSpotHistorySlots = 2001;  // one more than the longest rotation file

  int SongsSinceLiner = 1;
  int SongsSinceBreak = 0;
  int SpotsInBreak = 1;  // place of the next spot in the running break
  PlayHistory MusicHistory{kMusicHistorySlots};
  PlayHistory SpotHistory{kSpotHistorySlots};
  std::vector<std::string> BreakAccounts;  // product codes heard in this break, by place from 0
  int LegalArmed = 0;                      // 1 owes a legal id
  int ForceBreak = 0;                      // 1 after a break-opening liner: straight to the break
  int LastLinerIndex = 0;
  int spot_tries = 1;  // draws since the last accepted spot
  int liner_tries = 0;
};

}  // namespace quixair
