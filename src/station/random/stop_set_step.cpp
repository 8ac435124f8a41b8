#include "station/random/stop_set_step.h"

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/platform/civil_time.h"
#include "station/random/item_step.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"

namespace quixair {

void StopSetStep::PlayNextRow() {
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
      PauseAt(row);
      break;
    case EventKind::kTimeAnnouncement:
      AnnounceTime();
      break;
    default:
      PlayRecording(run.StopSetIndex);
  }
}

void StopSetStep::PauseAt(const StopSetRow& row) {
  RandomForm1& screen = context_.screen;
  const int override_seconds = context_.settings.PauseOverrideSecs;
  const std::string length = override_seconds == 0 ? "[Override is OFF]" : std::to_string(override_seconds);
  Show({.RecordingId = row.text(),
        .Drive = {},
        .first_text = {},
        .Title = "Audio is Paused",
        .Length = length},
       {});
  context_.air.status.Tell(status_text::kPauseEvent);
  screen.CurrLabel[4].SetCaption("");
  context_.air.deck.HoldFor(Hold::kPauseEvent);
  screen.Run.BeginNextCommand.Enable();  // the line asks for it
}

void StopSetStep::AnnounceTime() {
  RandomForm1& screen = context_.screen;
  const CivilTime now = context_.platform.clock.Now();
  const std::string path = TimeFileName(now);
  if (!context_.platform.files.Exists(path)) {
    play_next_();
    return;
  }
  Show({}, {});
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

void StopSetStep::PlayRecording(int number) {
  Files& files = context_.platform.files;
  StopSetRow& row = context_.stop_sets.row(number);
  if (!files.Exists(station_paths::DataFile(row.EventId))) {
    play_next_();
    return;
  }
  const auto refusal = RefusalOfSpot(context_, row.EventId);
  row.marked = true;
  context_.screen.List7.SetRow(number, row.text());
  if (refusal) {
    ++context_.run.event_counter;
    TellRefusal(context_, row.EventId + *refusal);
    play_next_();
    return;
  }
  const WorkingItem item{.RecordingId = row.EventId,
                         .Drive = row.Drive,
                         .first_text = row.second,
                         .Title = row.Title,
                         .Length = row.Length};
  WorkingItem shown = item;
  shown.RecordingId = row.text();
  Show(shown, row.EventId);
  PlayOnFirst(AirItemOf(context_, item, ItemOrigin::kStopSet, number));
}

void StopSetStep::Show(const WorkingItem& item, const std::string& id) {
  RandomForm1& screen = context_.screen;
  screen.Text7.Show();
  screen.Text7.SetText("STOP-SET PLAYING");
  ShowItem(context_, item, id);
  for (std::size_t label = 0; label < 4; ++label) screen.CurrLabel[label].SetForeColor(kYellow);
}

void StopSetStep::PlayOnFirst(const AirItem& item) {
  if (!context_.air.Begin(1, item)) {
    play_next_();
    return;
  }
  context_.air.EndStep();
}

}  // namespace quixair
