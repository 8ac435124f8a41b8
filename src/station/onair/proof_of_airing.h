#pragma once

// The proof of airing of a run: a line of the day's verification log for each item that begins, while the
// operator has it switched on. Items of stop sets do not stand in it, which stations are used to, nor do
// announcements and ordinary liners.

#include <functional>

#include "station/library/proof_log.h"
#include "station/onair/deck.h"
#include "station/onair/playback_switches.h"
#include "station/platform/platform.h"

namespace quixair {

class ProofOfAiring final : public DeckObserver {
 public:
  /// `on_written` learns what became of each line: 61 when the disk is full.
  ProofOfAiring(const Platform& platform, ModeLetter mode, const PlaybackSwitches& switches,
                std::function<void(const Status&)> on_written)
      : platform_(platform), mode_(mode), switches_(switches), on_written_(std::move(on_written)) {}

  void ItemBegan(int channel, const AirItem& item) override;
  /// The line of an item, begun or not: for the step behind a nested one.
  void Write(const AirItem& item) const;

 private:
  const Platform& platform_;
  ModeLetter mode_;
  const PlaybackSwitches& switches_;
  std::function<void(const Status&)> on_written_;
};

}  // namespace quixair
