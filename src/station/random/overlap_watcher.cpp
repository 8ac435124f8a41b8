#include "station/random/overlap_watcher.h"

#include "station/library/recording.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

void OverlapWatcher::Tick() {
  Deck& deck = context_.air.deck;
  context_.air.AbortCompeting();
  if (context_.run.StopSetActive) return;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap != 0 && !deck.AudioPaused()) {
    for (const int channel : {2, 1}) {
      if (deck.ended(channel)) deck.End(channel, EndCause::kEndOfFile);
    }
  }
  if (OverlapHeldOff(context_) || !PointReached(overlap)) return;
  ++context_.run.event_counter;
  deck.OverlapActive = true;
  engine_.PlayNextItem();
}

bool OverlapHeldOff(const RandomContext& context) {
  const Deck& deck = context.air.deck;
  const RotationState& rotation = context.rotation;
  if (deck.live.LiveRequested() || deck.AudioPaused() || context.run.StopSetActive) return true;
  for (const int channel : {1, 2}) {
    if (const AirItem* item = deck.item(channel); item != nullptr && IsSpotId(item->id)) return true;
  }
  const bool plays_breaks =
      context.settings.BreakType != break_type::kNone && context.pools.spots.count() > 0;
  const bool break_next = rotation.SongsSinceBreak == context.settings.SongsPerBreak;
  const bool break_running = rotation.SpotsInBreak > 1;
  return plays_breaks && (break_next || break_running);
}

/// One second before the overlap set, so that the tick that comes up to a second late still keeps it.
bool OverlapWatcher::PointReached(int overlap) {
  const Deck& deck = context_.air.deck;
  if (deck.active == ActiveChannel::kFirst) overlap_point_ = deck.length(1) - overlap - 1;
  // Between two items channel 1 is silent for a moment: then the next one is not this tick's to start.
  if (!deck.plays(1)) return false;
  return deck.active != ActiveChannel::kSecond && deck.closed(2) && deck.position(1) >= overlap_point_;
}

}  // namespace quixair
