#pragma once

// The deck: what is on the air and on which channel, since when, and what holds it. Every item of a run goes on
// the air and leaves it through here, in both playback modes, so whoever must know of it (proof of airing, the
// throttle of the fault list) is told here and reads nothing back from labels or paths. Which item comes next,
// and when, is the modes' business. All on the user interface thread.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "station/onair/air_item.h"
#include "station/onair/channel_bank.h"
#include "station/onair/item_clock.h"
#include "station/onair/live_break.h"
#include "station/onair/on_air_status.h"

namespace quixair {

/// Why an item left its channel.
enum class EndCause {
  kEndOfFile,
  kSkipped,   // by Begin Next
  kOperator,  // ended the run
  kHandOver,  // the list gave way to the next day's
  kAborted,   // two songs had started over each other
  kProgramEnds,
};

/// Whose turn it is between channels 1 and 2.
enum class ActiveChannel { kFirst = 1, kSecond = 2, kFirstRetiring = 99 };

/// Why a run is silent by wish.
enum class Hold {
  kNone,
  kOperator,    // Pause or Re-Queue
  kPauseEvent,  // a pause in a list or stop set
  kLiveBreak,
};

class DeckObserver {
 public:
  /// It sounds.
  virtual void ItemBegan(int channel, const AirItem& item) = 0;
  /// `seconds_heard` of its audio.
  virtual void ItemEnded(int /*channel*/, const AirItem& /*item*/, EndCause /*cause*/,
                         double /*seconds_heard*/) {}

 protected:
  ~DeckObserver() = default;
};

class Deck {
 public:
  Deck(ChannelBank& channels, const Clock& clock) : channels_(channels), clock_(clock) {}
  /// `observer` outlives the deck's last item.
  void Observe(DeckObserver& observer) { observers_.push_back(&observer); }

  void BeginRun();
  /// Closes what is open.
  void EndRun(EndCause cause);
  bool running() const { return running_; }

  /// Puts an item on channel 1 or 2 and makes it the active one. False when its file cannot be played: the
  /// channel is closed then, and nothing else has changed.
  bool Begin(int channel, AirItem item);
  void End(int channel, EndCause cause);
  void EndAll(EndCause cause);
  /// Frees channel 1 or 2 when its file has ended and nothing else took notice: the item ended while the other
  /// channel had taken over.
  void SweepEnded();
  /// The active channel becomes `channel` without a new item: behind a nested step.
  void TakeTurn(int channel);

  /// Holds the run. kOperator pauses what plays; the others begin a silence of their own, and what still plays
  /// goes on to its end.
  void HoldFor(Hold reason);
  void GoOn();
  /// Takes what is open back to its start; its clock begins anew with GoOn.
  void Rewind();
  Hold hold() const { return hold_; }
  bool AudioPaused() const { return hold_ != Hold::kNone; }
  bool RequeuePending() const { return requeue_pending_; }

  LiveBreak live;
  ItemClock& clock() { return clock_; }
  double elapsed() const { return clock_.elapsed(); }

  // the hand-over between the channels
  ActiveChannel active = ActiveChannel::kFirst;
  bool OverlapActive = false;    // the next item has been asked for before the end of the one on channel 1
  bool OverlapHandBack = false;  // channel 2 finishes, channel 1 has the next item

  ChannelMode mode(int channel) const { return channels_.channel(channel).Mode(); }
  bool plays(int channel) const { return mode(channel) == ChannelMode::kPlaying; }
  bool ended(int channel) const { return mode(channel) == ChannelMode::kStopped; }
  bool closed(int channel) const { return mode(channel) == ChannelMode::kNotOpen; }
  /// Of the open file, 0 when there is none.
  double length(int channel) const { return channels_.channel(channel).Length() / 1000.0; }
  double position(int channel) const { return channels_.channel(channel).Position() / 1000.0; }
  bool AnythingSounds() const { return plays(1) || plays(2); }
  /// Both channels play songs, each no further than `seconds`: two that were started over each other.
  bool TwoSongsBegan(double seconds) const;
  /// What is on a channel; none when it is closed.
  const AirItem* item(int channel) const;

  OnAirStatus status() const;

 private:
  ChannelBank& channels_;
  ItemClock clock_;
  std::array<std::optional<AirItem>, 2> items_;
  std::vector<DeckObserver*> observers_;
  bool running_ = false;
  Hold hold_ = Hold::kNone;
  bool requeue_pending_ = false;
};

}  // namespace quixair
