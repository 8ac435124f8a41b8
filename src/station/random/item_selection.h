#pragma once

// The choice of Random playback: what plays next, decided from counters, settings and chance. Each rule is a
// function; the rules hand on to one another until an item stands. Comparisons of counters with settings are
// equalities on purpose: a setting lowered below its counter in mid-run is not met again until the counter is
// reset.
//
// No draw is endless: songs give up on their history after about 1500 comparisons, spots after 50 tries,
// liners after 1000; and where a combination of settings and pools would hand the decision round in a circle
// for ever (no spots loaded, liners disabled, a liner due), a song ends it: silence is the worst answer.

#include <string>
#include <string_view>

#include "station/platform/random_source.h"
#include "station/random/random_settings.h"
#include "station/random/rotation_pools.h"
#include "station/random/rotation_state.h"

namespace quixair {

/// The item that a choice stands at.
struct WorkingItem {
  std::string RecordingId;
  std::string Drive;
  std::string first_text;  // artist of a song, account of a spot, empty for a liner
  std::string Title;
  std::string Length;
};
WorkingItem ItemOf(const PoolRow& row);

class ItemSelection {
 public:
  /// All are the screen's and outlive this.
  ItemSelection(const RandomSettings& settings, const RotationPools& pools, RotationState& state,
                RandomSource& random)
      : settings_(settings), pools_(pools), state_(state), random_(random) {}

  enum class LegalId { kNone, kBeforeTheHour, kAfterTheHour };
  /// One legal id falls in each window from minute 56 to minute 15, at the first decision in it.
  LegalId TakeLegalIdWhenDue(int minute, WorkingItem& item);

  /// Chooses song, spot or liner. `last_item_id` is the id of the item before. False when the step must end
  /// with nothing chosen: the table of songs played has overrun; it is emptied, and the next step finds room.
  bool Choose(std::string_view last_item_id, WorkingItem& item);

 private:
  enum class Rule { kDecide, kMusic, kBreakDecision, kBreak, kLiner, kChosen, kOverrun };

  Rule Decide() const;
  Rule SelectMusic(int& compared, WorkingItem& item);
  Rule DecideBreak(std::string_view last_item_id);
  Rule SelectSpot(WorkingItem& item);
  Rule SelectLiner(WorkingItem& item);

  Rule AcceptSong(const PoolRow& song);
  Rule AfterBreakWithoutSpots();
  Rule EndBreak();
  Rule GiveUpOnSpots();
  bool ProductHeardInBreak(const std::string& product) const;

  const RandomSettings& settings_;
  const RotationPools& pools_;
  RotationState& state_;
  RandomSource& random_;
};

}  // namespace quixair
