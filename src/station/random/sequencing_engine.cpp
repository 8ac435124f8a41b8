#include "station/random/sequencing_engine.h"

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"

namespace quixair {
std::string PlaybackText(bool stop_set) {
  return stop_set ? std::string(33, ' ') + "Digital Audio Playback in Progress - [Stop Set]"
                  : std::string(48, ' ') + "Digital Audio Playback in Progress";
}

SequencingEngine::SequencingEngine(RandomContext& context)
    : context_(context),
      selection_(context.settings, context.pools, context.rotation, context.platform.random) {}

void SequencingEngine::PlayNextItem() {
  if (depth_ >= kMaxNestedSteps) return;
  ++depth_;
  Step();
  --depth_;
}

void SequencingEngine::Step() {
  RememberLastItem();
  if (context_.air.deck.live.LiveRequested()) {
    context_.air.HoldForLive();
    shown_id_.clear();
    return;
  }
  ItemOrigin origin = ItemOrigin::kLegalId;
  if (!TakeLegalId(item_)) {
    if (context_.run.StopSetActive) {
      PlayStopSetRow();
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
  last_item_id_ = shown_id_;
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
  ShowItem(item);
  shown_id_ = item.RecordingId;
  context_.air.ShowTurn(1);
  const AirItem air_item = AirItemOf(item, origin);
  // Behind a nested step the replacement is on the air, and the refused item stands in the proof beside it.
  if (!StartOnFreeChannel(air_item) && context_.air.deck.AnythingSounds()) context_.proof.Write(air_item);
  context_.air.EndStep();
}

/// With neither file there, the path without an extension cannot be opened, and is what gets reported.
AirItem SequencingEngine::AirItemOf(const WorkingItem& item, ItemOrigin origin) const {
  const std::string extension =
      FindAudioFile(context_.platform.files, item.Drive, item.RecordingId).value_or(std::string());
  return {.id = item.RecordingId,
          .path = station_paths::AudioFile(item.Drive, item.RecordingId, extension),
          .first_text = item.first_text,
          .title = item.Title,
          .origin = origin};
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
  const auto refusal = RefusalOfSpot(item.RecordingId);
  if (!refusal) return;
  ++context_.run.event_counter;
  Refuse(item.RecordingId + *refusal);
  PlayNextItem();
}

std::optional<std::string> SequencingEngine::RefusalOfSpot(const std::string& id) {
  if (!IsSpotId(id)) return std::nullopt;
  Files& files = context_.platform.files;
  const SpotDateSwitch date_check = ReadSpotDateSwitch(files);
  if (date_check == SpotDateSwitch::kUnknown)
    context_.screen.Switches.Check4.SetCaption(SpotDateCaption(date_check));
  if (date_check != SpotDateSwitch::kOn) return std::nullopt;
  Recording spot(id);
  SkipAndGoOn(spot.Read(files));
  return SpotDateRefusal(spot.value(Field::kStartDate), spot.value(Field::kKillDate),
                         context_.platform.clock.Now());
}

void SequencingEngine::Refuse(const std::string& row) {
  context_.air.faults.Add(row, ' ' + row);
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

void SequencingEngine::ShowItem(const WorkingItem& item) {
  RandomForm1& screen = context_.screen;
  context_.air.status.Tell(PlaybackText(context_.run.StopSetActive));
  for (std::size_t row = 0; row < 4; ++row) screen.CurrLabel[row].SetForeColor(kWhite);
  screen.CurrLabel[0].SetCaption(' ' + item.RecordingId + "  " + item.first_text);
  screen.CurrLabel[1].SetCaption(' ' + item.Title);
  screen.CurrLabel[2].SetCaption(" Length:   " + item.Length);
  screen.CurrLabel[3].SetCaption(" Elapsed: ");
}

}  // namespace quixair
