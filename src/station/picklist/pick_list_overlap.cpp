#include "station/picklist/pick_list_overlap.h"

#include "station/library/recording.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_run.h"

namespace quixair {
void PickListOverlap::Tick() {
  Deck& deck = context_.air.deck;
  if (context_.run.run_over) return;
  context_.air.AbortCompeting();
  if (!MayOverlap()) return;
  // A run that waits for its operator, at a local break, is not this tick's to move on.
  if (!deck.plays(1) || deck.active == ActiveChannel::kSecond) return;
  // Exact to the overlap set, where Random playback starts a second before it.
  if (deck.length(1) - context_.screen.Overlap.seconds() > deck.position(1)) return;
  deck.OverlapActive = true;
  engine_.ShowRemaining(true);
  ++context_.run.CurrentEvent;
  engine_.PlayNextEvent();
}

bool PickListOverlap::MayOverlap() const {
  const Deck& deck = context_.air.deck;
  if (deck.AudioPaused() || context_.run.CurrentEvent >= context_.events.EventCount() ||
      context_.screen.Overlap.seconds() == 0 || deck.live.LiveRequested() || deck.OverlapActive) {
    return false;
  }
  const std::string& current = context_.current_id();
  const std::string& next = context_.events.next_id(context_.run.CurrentEvent);
  if (IsTimeEvent(current) || IsSpotId(current)) return false;
  // A lower-case ">p" passes: known, and kept.
  if (context_.events.StandsAt(context_.run.CurrentEvent + 1)) return false;
  if (IsTimeEvent(next) || next.starts_with(">P") || IsSpotId(next)) return false;
  return deck.closed(2) && next != current;
}

}  // namespace quixair
