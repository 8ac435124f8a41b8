// The part of the sequencing step that plays the day's stop sets: one row of the set in play per call.

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/random/random_form1.h"
#include "station/random/random_playback.h"
#include "station/random/sequencing_engine.h"

namespace quixair {

void SequencingEngine::PlayStopSetRow() {
  RunState& run = context_.run;
  MediaControl& channel = context_.screen.Channels.MMControl1;
  ++run.StopSetIndex;
  channel.Command(ChannelCommand::kClose);
  const bool past_the_end = run.StopSetIndex > context_.stop_sets.count();
  if (past_the_end || context_.stop_sets.row(run.StopSetIndex).kind == EventKind::kLocalBreak) {
    run.StopSetActive = 0;  // the watcher finds both channels closed and goes back to the rotation
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
  RunState& run = context_.run;
  const int override_seconds = context_.settings.PauseOverrideSecs;
  const std::string length = override_seconds == 0 ? "[Override is OFF]" : std::to_string(override_seconds);
  ShowStopSetItem({.RecordingId = row.text(),
                   .Drive = {},
                   .first_text = {},
                   .Title = "Audio is Paused",
                   .Length = length});
  screen.Text1.SetText(std::string(22, ' ') + "Audio Paused... Press <Begin Next> to Resume.");
  screen.CurrLabel[4].SetCaption("");
  run.ItemStartTimer = context_.platform.clock.Steady();
  run.pause_started = run.ItemStartTimer;
  run.AudioPaused = 1;
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
  PlayOnFirst(path);
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
  // With its mark in front the id is of no kind that the verification log takes: stop sets do not stand in
  // it, which stations are used to.
  ShowStopSetItem({.RecordingId = row.text(),
                   .Drive = row.Drive,
                   .first_text = row.second,
                   .Title = row.Title,
                   .Length = row.Length});
  const std::string extension = FindAudioFile(files, row.Drive, row.EventId).value_or(std::string());
  PlayOnFirst(station_paths::AudioFile(row.Drive, row.EventId, extension));
}

void SequencingEngine::ShowStopSetItem(const WorkingItem& item) {
  RandomForm1& screen = context_.screen;
  screen.Text7.Show();
  screen.Text7.SetText("STOP-SET PLAYING");
  ShowItem(item);
  for (std::size_t label = 0; label < 4; ++label) screen.CurrLabel[label].SetForeColor(kYellow);
}

void SequencingEngine::PlayOnFirst(const std::string& path) {
  MediaControl& channel = context_.screen.Channels.MMControl1;
  if (OpenFile(channel, path) == 0) {
    ReportEmpty(channel);
    channel.Command(ChannelCommand::kClose);
    PlayNextItem();
    return;
  }
  Started started;
  Play(1, started);
  context_.faults.ItemSounds();
  FinishStep();
}

}  // namespace quixair
