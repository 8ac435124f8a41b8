// The part of the sequencing step that plays the day's stop sets: one row of the set in play per call.

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

void SequencingEngine::PlayStopSetRow() {
  RandomRun& run = context_.run;
  ++run.StopSetIndex;
  context_.air.deck.End(1, EndCause::kEndOfFile);
  const bool past_the_end = run.StopSetIndex > context_.stop_sets.count();
  if (past_the_end || context_.stop_sets.row(run.StopSetIndex).kind == EventKind::kLocalBreak) {
    run.StopSetActive = false;  // the watcher finds both channels closed and goes back to the rotation
    run.StopSetIndex = 0;
    context_.screen.List7.Select(-1);
    return;
  }
  context_.screen.List7.Select(run.StopSetIndex);
  const StopSetRow& row = context_.stop_sets.row(run.StopSetIndex);
  switch (row.kind) {
    case EventKind::kPause:
      PauseInStopSet(row);
      break;
    case EventKind::kTimeAnnouncement:
      AnnounceTime();
      break;
    default:
      PlayStopSetRecording(run.StopSetIndex);
  }
}

void SequencingEngine::PauseInStopSet(const StopSetRow& row) {
  RandomForm1& screen = context_.screen;
  const int override_seconds = context_.settings.PauseOverrideSecs;
  const std::string length = override_seconds == 0 ? "[Override is OFF]" : std::to_string(override_seconds);
  ShowStopSetItem({.RecordingId = row.text(),
                   .Drive = {},
                   .first_text = {},
                   .Title = "Audio is Paused",
                   .Length = length});
  context_.air.status.Tell(status_text::kPauseEvent);
  screen.CurrLabel[4].SetCaption("");
  context_.air.deck.HoldFor(Hold::kPauseEvent);
}

void SequencingEngine::AnnounceTime() {
  RandomForm1& screen = context_.screen;
  const CivilTime now = context_.platform.clock.Now();
  const std::string path = TimeFileName(now);
  if (!context_.platform.files.Exists(path)) {
    PlayNextItem();
    return;
  }
  ShowStopSetItem({});
  screen.CurrLabel[0].SetCaption("Playing Current Time");
  screen.CurrLabel[1].SetCaption(FourDigitHourMinute(now));
  screen.CurrLabel[3].SetCaption(" ");
  PlayOnFirst({.id = {},
               .path = path,
               .first_text = {},
               .title = screen.CurrLabel[0].caption(),
               .origin = ItemOrigin::kStopSet,
               .row = context_.run.StopSetIndex});
}

/// A row that is refused hands over to the next one and ends here. The rows are told by their number, which
/// has moved on by then: going on would show, and at the end of a set even play, what was refused.
void SequencingEngine::PlayStopSetRecording(int number) {
  Files& files = context_.platform.files;
  StopSetRow& row = context_.stop_sets.row(number);
  if (!files.Exists(station_paths::DataFile(row.EventId))) {
    PlayNextItem();
    return;
  }
  const auto refusal = RefusalOfSpot(row.EventId);
  row.marked = true;
  context_.screen.List7.SetRow(number, row.text());
  if (refusal) {
    ++context_.run.event_counter;
    Refuse(row.EventId + *refusal);
    PlayNextItem();
    return;
  }
  const WorkingItem item{.RecordingId = row.EventId,
                         .Drive = row.Drive,
                         .first_text = row.second,
                         .Title = row.Title,
                         .Length = row.Length};
  WorkingItem shown = item;
  shown.RecordingId = row.text();
  ShowStopSetItem(shown);
  shown_id_ = row.EventId;
  AirItem air_item = AirItemOf(item, ItemOrigin::kStopSet);
  air_item.row = number;
  PlayOnFirst(air_item);
}

void SequencingEngine::ShowStopSetItem(const WorkingItem& item) {
  RandomForm1& screen = context_.screen;
  screen.Text7.Show();
  screen.Text7.SetText("STOP-SET PLAYING");
  ShowItem(item);
  shown_id_.clear();
  for (std::size_t label = 0; label < 4; ++label) screen.CurrLabel[label].SetForeColor(kYellow);
}

void SequencingEngine::PlayOnFirst(const AirItem& item) {
  if (!context_.air.Begin(1, item)) {
    PlayNextItem();
    return;
  }
  context_.air.EndStep();
}

}  // namespace quixair
