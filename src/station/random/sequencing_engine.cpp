#include "station/random/sequencing_engine.h"

#include "station/console/station_paths.h"
#include "station/library/recording.h"
#include "station/onair/nested_call.h"
#include "station/platform/civil_time.h"
#include "station/random/item_step.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"

namespace quixair {

SequencingEngine::SequencingEngine(RandomContext& context)
    : context_(context),
      selection_(context.settings, context.pools, context.rotation, context.platform.random),
      stop_set_step_(context, [this] { PlayNextItem(); }) {}

void SequencingEngine::PlayNextItem() {
  if (depth_ == 0) steps_ = 0;
  if (depth_ >= kMaxNestedSteps || ++steps_ > kMaxSteps) return;
  const NestedCall nested(depth_);
  Step();
}

void SequencingEngine::Step() {
  RememberLastItem();
  if (context_.air.deck.live.LiveRequested()) {
    context_.air.HoldForLive();
    context_.run.shown_id.clear();
    return;
  }
  ItemOrigin origin = ItemOrigin::kLegalId;
  if (!TakeLegalId(item_)) {
    // A break that has been opened with a liner is not torn apart by a set that is due.
    if (context_.run.StopSetActive && context_.rotation.ForceBreak != 1) {
      stop_set_step_.PlayNextRow();
      return;
    }
    if (!selection_.Choose(last_item_id_, item_)) return;
    origin = ItemOrigin::kRotation;
  }
  const WorkingItem item = item_;  // a nested step chooses anew; this one goes on with its own
  StartItem(item, origin);
}

void SequencingEngine::RememberLastItem() {
  RandomForm1& screen = context_.screen;
  for (std::size_t row = 0; row < 2; ++row) screen.LastLabel[row].SetCaption(screen.CurrLabel[row].caption());
  last_item_id_ = context_.run.shown_id;
}

/// Comes before the stop set too.
bool SequencingEngine::TakeLegalId(WorkingItem& item) {
  switch (selection_.TakeLegalIdWhenDue(context_.platform.clock.Now().minute, item)) {
    case ItemSelection::LegalId::kBeforeTheHour:
      context_.screen.Text3.SetText(item.RecordingId);
      return true;
    case ItemSelection::LegalId::kAfterTheHour:
      return true;
    case ItemSelection::LegalId::kNone:
      break;
  }
  return false;
}

void SequencingEngine::StartItem(const WorkingItem& item, ItemOrigin origin) {
  if (IsSpotId(item.RecordingId)) CheckSpot(item);
  ShowHint(item);
  ShowItem(context_, item, item.RecordingId);
  context_.air.ShowTurn(1);
  const AirItem air_item = AirItemOf(context_, item, origin);
  // Behind a nested step the replacement is on the air, and the refused item stands in the proof beside it.
  if (!StartOnFreeChannel(air_item) && context_.air.deck.AnythingSounds()) context_.proof.Write(air_item);
  context_.air.EndStep();
}

/// Channel 1 when it does not play; channel 2 when it does and the overlap wants a second item. Behind a
/// nested step the replacement is on the air already, and nothing more is opened.
bool SequencingEngine::StartOnFreeChannel(const AirItem& item) {
  const Deck& deck = context_.air.deck;
  if (!deck.plays(1)) return BeginOrReplace(1, item);
  if (!deck.OverlapActive) return false;
  if (!deck.plays(2)) return BeginOrReplace(2, item);
  context_.air.ShowTurn(2);
  return false;
}

bool SequencingEngine::BeginOrReplace(int channel, const AirItem& item) {
  if (context_.air.Begin(channel, item)) return true;
  PlayNextItem();
  context_.air.ShowTurn(channel);
  return false;
}

void SequencingEngine::CheckSpot(const WorkingItem& item) {
  Files& files = context_.platform.files;
  if (!files.Exists(station_paths::DataFile(item.RecordingId))) {
    ++context_.run.event_counter;
    PlayNextItem();
    return;
  }
  const auto refusal = RefusalOfSpot(context_, item.RecordingId);
  if (!refusal) return;
  ++context_.run.event_counter;
  TellRefusal(context_, item.RecordingId + *refusal);
  PlayNextItem();
}

void SequencingEngine::ShowHint(const WorkingItem& item) {
  const RotationState& rotation = context_.rotation;
  const RandomSettings& settings = context_.settings;
  TextBox& hint = context_.screen.Text5;
  if (rotation.SongsSinceBreak < settings.SongsPerBreak) hint.SetText(" (Music File Coming Up)");
  if (rotation.SongsSinceLiner == settings.SongsPerLiner && settings.LinerEnable != 0) {
    hint.SetText(" (Liner File Coming Up)");
  }
  if (rotation.SongsSinceBreak == settings.SongsPerBreak &&
      settings.BreakType == break_type::kInternalRandom) {
    hint.SetText(" (Break Coming Up)   ");
  }
  if (rotation.SpotsInBreak == settings.MaxSpotsPerBreak) {
    if (settings.LinerEnable == 1) hint.SetText(" (Liner File Coming Up)");
    // In another box than the rest: a slip that operators are used to.
    if (settings.LinerEnable == 0) context_.screen.Text3.SetText(" (Music File Coming Up)");
  }
  if (item.RecordingId.starts_with('S')) hint.SetText(" (Playing Break Now)  ");
}

}  // namespace quixair
