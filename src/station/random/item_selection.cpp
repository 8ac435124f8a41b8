#include "station/random/item_selection.h"

#include <algorithm>

#include "station/library/recording.h"

namespace quixair {
namespace {

constexpr int kMusicComparisons = 1500;
constexpr int kSpotTries = 50;
constexpr int kLinerTries = 1000;
constexpr int kMaxHandOvers =
    10000;  // from rule to rule; draws that are bounded by their own counters stay far below

}  // namespace

WorkingItem ItemOf(const PoolRow& row) {
  return {.RecordingId = row.RecordingId,
          .Drive = row.Drive,
          .first_text = row.first_text,
          .Title = row.Title,
          .Length = row.Length};
}

ItemSelection::LegalId ItemSelection::TakeLegalIdWhenDue(int minute, WorkingItem& item) {
  if (minute >= 16 && minute <= 55) {
    state_.LegalArmed = 1;
    return LegalId::kNone;
  }
  if (state_.LegalArmed != 1 || pools_.legal_ids.count() < 1) return LegalId::kNone;
  item = ItemOf(pools_.legal_ids.row(random_.Draw(pools_.legal_ids.count())));
  state_.LegalArmed = 0;
  state_.SongsSinceLiner = 0;
  return minute >= 56 ? LegalId::kBeforeTheHour : LegalId::kAfterTheHour;
}

bool ItemSelection::Choose(std::string_view last_item_id, WorkingItem& item) {
  Rule rule = Rule::kDecide;
  if (state_.ForceBreak == 1) {
    state_.ForceBreak = 0;
    state_.SongsSinceLiner = 0;
    rule = Rule::kBreak;
  }
  int compared = 0;  // of this one call, over all its draws
  for (int hand_overs = 0;; ++hand_overs) {
    if (hand_overs >= kMaxHandOvers && rule == Rule::kDecide) rule = Rule::kMusic;
    switch (rule) {
      case Rule::kDecide:
        rule = Decide();
        break;
      case Rule::kMusic:
        rule = SelectMusic(compared, item);
        break;
      case Rule::kBreakDecision:
        rule = DecideBreak(last_item_id);
        break;
      case Rule::kBreak:
        rule = SelectSpot(item);
        break;
      case Rule::kLiner:
        rule = SelectLiner(item);
        break;
      case Rule::kChosen:
        return true;
      case Rule::kOverrun:
        return false;
    }
  }
}

ItemSelection::Rule ItemSelection::Decide() const {
  if (state_.SongsSinceLiner == settings_.SongsPerLiner && settings_.LinerEnable != 0) return Rule::kLiner;
  if (state_.SongsSinceLiner != settings_.SongsPerLiner &&
      state_.SongsSinceBreak != settings_.SongsPerBreak) {
    return Rule::kMusic;
  }
  return Rule::kBreakDecision;
}

ItemSelection::Rule ItemSelection::SelectMusic(int& compared, WorkingItem& item) {
  if (pools_.music.count() < 1) return Rule::kOverrun;
  const PoolRow& song = pools_.music.row(random_.Draw(pools_.music.count()));
  item = ItemOf(song);
  PlayHistory& history = state_.MusicHistory;
  if (history.position() >= pools_.music.count()) {  // the history is full for this pool
    history.Clear(history.position());
    return Rule::kDecide;
  }
  if (history.Contains(song.RecordingId, compared)) {
    if (compared >= kMusicComparisons) history.Clear(history.position());
    return Rule::kDecide;
  }
  return AcceptSong(song);
}

ItemSelection::Rule ItemSelection::AcceptSong(const PoolRow& song) {
  ++state_.SongsSinceLiner;
  ++state_.SongsSinceBreak;
  PlayHistory& history = state_.MusicHistory;
  if (history.position() >= history.capacity()) {
    history.Clear(history.capacity());
    return Rule::kOverrun;
  }
  history.Advance();
  history.SetSlot(history.position(), song.RecordingId);
  return Rule::kChosen;
}

ItemSelection::Rule ItemSelection::AfterBreakWithoutSpots() {
  state_.SongsSinceBreak = 0;
  return state_.SongsSinceLiner == settings_.SongsPerLiner ? Rule::kLiner : Rule::kDecide;
}

ItemSelection::Rule ItemSelection::DecideBreak(std::string_view last_item_id) {
  if (settings_.BreakType == break_type::kNone || pools_.spots.count() < 1) return AfterBreakWithoutSpots();
  if (state_.SongsSinceBreak != settings_.SongsPerBreak)
    return Rule::kLiner;  // due but disabled: it clears its counter
  const bool opens_with_liner = !IsLinerId(last_item_id) && settings_.BreakOpensWithLiner == 1 &&
                                state_.SpotsInBreak == 1 && settings_.LinerEnable != 0;
  if (!opens_with_liner) return Rule::kBreak;
  state_.ForceBreak = 1;
  state_.SongsSinceLiner = settings_.SongsPerLiner;
  return Rule::kLiner;
}

ItemSelection::Rule ItemSelection::SelectSpot(WorkingItem& item) {
  const int spot_count = pools_.spots.count();
  if (settings_.BreakType == break_type::kNone || spot_count < 1) return AfterBreakWithoutSpots();
  if (spot_count == 1) {  // no history, no product test, no closing liner: one spot a break
    item = ItemOf(pools_.spots.row(1));
    state_.SongsSinceBreak = 0;
    state_.SpotsInBreak = 1;
    return Rule::kChosen;
  }
  const PoolRow& spot = pools_.spots.row(random_.Draw(spot_count));
  item = ItemOf(spot);
  PlayHistory& history = state_.SpotHistory;
  if (history.position() >= spot_count) {  // every spot has had its turn
    history.Clear(history.position());
    return EndBreak();
  }
  if (++state_.spot_tries >= kSpotTries) return GiveUpOnSpots();
  int compared = 0;
  if (history.Contains(spot.RecordingId, compared)) return Rule::kBreak;
  if (ProductHeardInBreak(spot.Product)) return Rule::kBreak;

  const auto place = static_cast<std::size_t>(state_.SpotsInBreak);
  if (state_.BreakAccounts.size() <= place) state_.BreakAccounts.resize(place + 1);
  state_.BreakAccounts[place] = spot.Product;
  history.SetSlot(history.position(), spot.RecordingId);
  history.Advance();
  if (state_.SpotsInBreak < settings_.MaxSpotsPerBreak + 1) {
    state_.spot_tries = 1;
    ++state_.SpotsInBreak;
    return Rule::kChosen;
  }
  // The break is over. The pick that found this out is not played although it stands in the history: one spot
  // is lost per break, a fixed trait of the rotation.
  return EndBreak();
}

bool ItemSelection::ProductHeardInBreak(const std::string& product) const {
  if (product.empty()) return false;
  const auto& heard = state_.BreakAccounts;
  const auto places = std::min(heard.size(), static_cast<std::size_t>(state_.SpotsInBreak) + 1);
  return std::find(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(places), product) !=
         heard.begin() + static_cast<std::ptrdiff_t>(places);
}

ItemSelection::Rule ItemSelection::EndBreak() {
  state_.BreakAccounts.clear();
  state_.SongsSinceBreak = 0;
  state_.SpotsInBreak = 1;
  if (settings_.BreakClosesWithLiner != 1) return Rule::kDecide;
  state_.SongsSinceLiner = settings_.SongsPerLiner;
  return Rule::kLiner;
}

ItemSelection::Rule ItemSelection::GiveUpOnSpots() {
  state_.SpotHistory.Clear(pools_.spots.count());
  state_.spot_tries = 1;
  return EndBreak();
}

ItemSelection::Rule ItemSelection::SelectLiner(WorkingItem& item) {
  if (settings_.LinerEnable == 0) {
    state_.SongsSinceLiner = 0;
    return state_.SongsSinceBreak == settings_.SongsPerBreak ? Rule::kBreakDecision : Rule::kDecide;
  }
  const int liner_count = pools_.liners.count();
  if (state_.SongsSinceLiner != settings_.SongsPerLiner || liner_count < 1) return Rule::kChosen;
  int row = random_.Draw(liner_count);
  while (row == state_.LastLinerIndex && liner_count > 1)
    row = random_.Draw(liner_count);  // none follows itself
  item = ItemOf(pools_.liners.row(row));
  if (++state_.liner_tries >= kLinerTries) {
    state_.liner_tries = 0;
    state_.SongsSinceLiner = 0;
    return Rule::kDecide;
  }
  if (IsLegalId(item.RecordingId)) return Rule::kLiner;
  state_.SongsSinceLiner = 0;
  state_.liner_tries = 0;
  state_.LastLinerIndex = row;
  return Rule::kChosen;
}

}  // namespace quixair
