#include "station/random/sequencing_engine.h"

#include <algorithm>
#include <chrono>

#include "station/console/logs.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/random_form1.h"
#include "station/random/random_playback.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kChannelPollTick{210};
constexpr std::chrono::milliseconds kOverlapTick{1000};

/// The id at the start of a label's text.
std::string LeadingId(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return std::string(text.substr(0, text.find(' ')));
}

}  // namespace

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
  if (context_.run.LiveRequested == 1) {
    HoldForLive();
    return;
  }
  if (!TakeLegalId(item_)) {
    if (context_.run.StopSetActive == 1) {
      PlayStopSetRow();
      return;
    }
    if (!selection_.Choose(last_item_id_, item_)) return;
  }
  const WorkingItem item = item_;  // a nested step chooses anew; this one goes on with its own
  StartItem(item);
}

void SequencingEngine::RememberLastItem() {
  RandomForm1& screen = context_.screen;
  for (std::size_t row = 0; row < 2; ++row) screen.LastLabel[row].SetCaption(screen.CurrLabel[row].caption());
  last_item_id_ = LeadingId(screen.LastLabel[0].caption());
}

void SequencingEngine::HoldForLive() {
  RandomForm1& screen = context_.screen;
  screen.Run.ShowLiveNow();
  context_.run.AudioPaused = 1;
  context_.run.live_now = true;
  context_.run.ItemStartTimer = context_.platform.clock.Steady();
  screen.CurrLabel[0].SetCaption(" LIVE !");
  screen.CurrLabel[1].SetCaption(" ");
  screen.CurrLabel[2].SetCaption(" ");
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

void SequencingEngine::StartItem(const WorkingItem& item) {
  Started started;
  if (IsSpotId(item.RecordingId)) CheckSpot(item);
  ShowHint(item);
  ShowItem(item);
  Play(1, started);
  StartOnFreeChannel(item, started);
  Verify(item, started);
  FinishStep();
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
  context_.faults.Add(row, ' ' + row);
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
  screen.Text1.SetText(PlaybackText(context_.run.StopSetActive == 1));
  for (std::size_t row = 0; row < 4; ++row) screen.CurrLabel[row].SetForeColor(kWhite);
  screen.CurrLabel[0].SetCaption(' ' + item.RecordingId + "  " + item.first_text);
  screen.CurrLabel[1].SetCaption(' ' + item.Title);
  screen.CurrLabel[2].SetCaption(" Length:   " + item.Length);
  screen.CurrLabel[3].SetCaption(" Elapsed: ");
}

/// Also sent before an item is opened, when it does nothing on the closed channel; behind a nested step it
/// finds the replacement playing, and the labels then tell that channel's file.
void SequencingEngine::Play(int number, Started& started) {
  RandomForm1& screen = context_.screen;
  MediaControl& channel = screen.Channels.channel(number);
  channel.Command(ChannelCommand::kPlay);
  started.start_time = HourMinuteSecondAmPm(context_.platform.clock.Now());
  context_.run.ActiveChannel = number;
  screen.CurrLabel[2].SetCaption(" Length:   " + ShortestSeconds(channel.Length()));
  screen.CurrLabel[4].SetCaption('(' + channel.file_name() + ')');
}

/// Channel 1 when it does not play; channel 2 when it does and the overlap wants a second item. Behind a
/// nested step the replacement is on the air already, and nothing more is opened.
void SequencingEngine::StartOnFreeChannel(const WorkingItem& item, Started& started) {
  const ChannelBank& channels = context_.screen.Channels;
  if (channels.MMControl1.Mode() != ChannelMode::kPlaying) {
    OpenAndPlay(1, item, started);
  } else if (context_.run.OverlapActive == 1) {
    if (channels.MMControl2.Mode() == ChannelMode::kPlaying) {
      Play(2, started);
    } else {
      OpenAndPlay(2, item, started);
    }
  }
}

void SequencingEngine::OpenAndPlay(int number, const WorkingItem& item, Started& started) {
  MediaControl& channel = context_.screen.Channels.channel(number);
  // With neither file there, the path without an extension cannot be opened, and is what gets reported.
  const auto extension = FindAudioFile(context_.platform.files, item.Drive, item.RecordingId);
  const std::string path =
      station_paths::AudioFile(item.Drive, item.RecordingId, extension.value_or(std::string()));
  if (OpenFile(channel, path) == 0) {
    ReportEmpty(channel);
    channel.Command(ChannelCommand::kClose);
    PlayNextItem();
  }
  Play(number, started);
}

void SequencingEngine::ReportEmpty(const MediaControl& channel) {
  Refuse(channel.file_name() + " = Empty!!!");
}

void SequencingEngine::Verify(const WorkingItem& item, const Started& started) {
  if (!context_.screen.Channels.AnythingSounds())
    return;  // nothing could be started in its place either: no proof of airing
  context_.faults.ItemSounds();
  if (!context_.screen.Switches.verification_on() || !IsVerified(item.RecordingId)) return;
  const Status written = LogVerification(context_.platform.files, context_.platform.clock.Now(),
                                         item.RecordingId, LogDescription(item.RecordingId, item.first_text),
                                         started.start_time, ModeLetter::kRandom);
  if (written.error() == RunTimeError::kDiskFull) {
    context_.screen.Text3.SetText(kDriveFullWarning);
    context_.screen.Text3.Show();
  } else if (written.ok() && context_.screen.Text3.visible()) {
    if (context_.screen.Text3.text() == kDriveFullWarning) context_.screen.Text3.SetText("");
    context_.screen.Text3.Hide();  // there is room again
  }
}

void SequencingEngine::FinishStep() {
  RandomForm1& screen = context_.screen;
  const CivilTime now = context_.platform.clock.Now();
  screen.Text2.SetText("Today is: " + DayName(now) + ". " + MonthDayYear(now));
  context_.run.ItemStartTimer = context_.platform.clock.Steady();
  screen.Timer2.SetInterval(kChannelPollTick);
  const bool overlap = screen.Overlap.Settled() != 0;
  screen.Timer3.SetInterval(overlap ? kOverlapTick : std::chrono::milliseconds(0));
}

}  // namespace quixair
