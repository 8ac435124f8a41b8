#pragma once

// A run on the air as both modes see it: the deck, the status line and the fault list of a playback screen, and
// what steps, ticks and operators do with them in the same way in both. Where the modes differ on purpose, the
// difference stands in their own folders, or below in Ways.

#include <chrono>
#include <functional>
#include <string>

#include "station/onair/air_fault_log.h"
#include "station/onair/air_guard.h"
#include "station/onair/deck.h"
#include "station/onair/playback_screen.h"
#include "station/onair/status_line.h"

namespace quixair {

class OnAir final : public DeckObserver {
 public:
  struct Ways {
    ModeLetter mode;
    std::chrono::milliseconds channel_poll;
    double together_seconds;  // two songs no further than this were started over each other
  };
  OnAir(PlaybackScreen& screen, const Ways& ways);

  PlaybackScreen& screen;
  Deck deck;
  StatusLine status;
  AirFaultLog faults;
  bool PauseNextPending = false;  // the next tick pauses the item that has just begun

  /// The next one can be skipped or taken back again.
  void ItemBegan(int channel, const AirItem& item) override;

  // steps
  /// Puts an item on a channel and shows it. False, with the fault told, when its file cannot be played.
  bool Begin(int channel, const AirItem& item);
  /// A channel's turn: the labels tell its file.
  void ShowTurn(int channel);
  void TellEmpty(const std::string& path);
  /// A full disk is told, and told no more when there is room again; it does not hold up the air.
  void TellProofWritten(const Status& written);
  /// The announcer has the air until Continue.
  void HoldForLive();
  /// The date and the timers.
  void EndStep();
  /// Polling begins with the first step that comes to its end.
  void ArmTimers();

  // ticks
  void ShowElapsed();
  /// The only guard against two songs over each other; it always keeps channel 1.
  void AbortCompeting();
  /// Goes on as Begin Next does when the air has been silent without anybody's wish, and tells it. `wanted`: the
  /// mode waits for its operator.
  void Guard(bool wanted, const std::function<void()>& begin_next);
  /// Start in the minute that was set.
  void StartWhenDue(const std::function<void()>& start);

  // the operator
  /// False when the other mode is on the air and the operator leaves it there: two programmes never sound at once.
  bool MayBegin();
  void BeginRun();
  void Pause(const std::string& text);
  /// Asks for a live break after the current item, or takes the request back.
  void GoLive();
  /// True when a live break was on, and is over.
  bool EndLiveBreak();
  /// Whether a Play on a transport bar may lead to Continue; channel 3's does not look at the pause.
  bool BarMayContinue(bool looks_at_pause) const;

 private:
  Ways ways_;
  AirGuard guard_;
};

}  // namespace quixair
