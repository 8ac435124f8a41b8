#include "station/random/random_playback.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/random/item_step.h"
#include "station/random/random_form1.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kSettingsTick{300000};
constexpr std::chrono::milliseconds kChannelPollTick{210};  // Pick-List polls at 190
constexpr double kTogetherSeconds = 10;                     // Pick-List says one second
constexpr double kProgressSeconds = 0.15;

[[noreturn]] void RefuseLibrary(const Platform& platform, std::string_view title, std::string_view text) {
  platform.dialogs.MessageBox(text, box_style::kOk + box_style::kCritical, title);
  EndProgram();
}

}  // namespace

RandomPlayback::RandomPlayback(RandomForm1& screen)
    : context_{.screen = screen,
               .platform = screen.platform(),
               .air = OnAir(screen, {.mode = ModeLetter::kRandom,
                                     .channel_poll = kChannelPollTick,
                                     .together_seconds = kTogetherSeconds}),
               .proof =
                   ProofOfAiring(screen.platform(), ModeLetter::kRandom, screen.Switches,
                                 [this](const Status& written) { context_.air.TellProofWritten(written); }),
               .settings = {},
               .pools = {},
               .rotation = {},
               .stop_sets = {},
               .run = {}},
      engine_(context_),
      controls_(context_, engine_),
      scheduler_(context_),
      watcher_(context_, engine_, controls_, scheduler_),
      overlap_(context_, engine_) {
  context_.air.deck.Observe(context_.proof);
  ConnectControls();
}

OnAirStatus RandomPlayback::status() const {
  OnAirStatus status = context_.air.deck.status();
  status.stop_set = context_.run.StopSetActive;
  return status;
}

void RandomPlayback::ConnectControls() {
  RandomForm1& screen = context_.screen;
  screen.Start.on_click = [this] { controls_.Start(); };
  for (Button* button : {&screen.Command2, &screen.Run.EndRunCommand}) button->on_click = [this] { Leave(); };
  screen.Run.PauseCommand.on_click = [this] { controls_.Pause(); };
  screen.Run.ContinueCommand.on_click = [this] { controls_.Continue(); };
  screen.Run.BeginNextCommand.on_click = [this] { controls_.BeginNext(); };
  screen.Run.RequeueCommand.on_click = [this] { controls_.Requeue(); };
  screen.Run.GoLive.on_click = [this] { context_.air.GoLive(); };
  screen.Command4.on_click = [&screen] { screen.StartTime.OpenFrame(); };
  screen.List1.on_click = [this] { controls_.ChooseFirstEvent(); };
  screen.Refresh.on_click = [this] { context_.air.deck.running() ? scheduler_.ShowLists() : Load(); };
  screen.Command5.on_click = [this] { ReadSettings(); };
  screen.Timer1.on_tick = [this] { context_.air.StartWhenDue([this] { controls_.Start(); }); };
  screen.Timer2.on_tick = [this] { watcher_.Tick(); };
  screen.Timer3.on_tick = [this] { overlap_.Tick(); };
  screen.Timer4.on_tick = [this] { LoadStatus(false); };
  screen.Channels.ConnectBars([this] { return context_.air.BarMayContinue(true); },
                              [this] { return context_.air.BarMayContinue(false); },
                              [this] { controls_.Continue(); });
}

void RandomPlayback::Leave() {
  context_.air.deck.running() ? controls_.EndRun() : controls_.Quit();
  context_.platform.screens.Unload(context_.screen);
}

void RandomPlayback::Load() {
  RandomForm1& screen = context_.screen;
  screen.SetTitle("Loading... Please Wait...");
  screen.List3.Clear();
  PrepareScreen();
  shown_pools_.clear();
  if (!LoadMusic() || !LoadLiners() || !LoadLegalIds()) return;
  ShowPools();
  LoadStatus(true);  // on a restart this starts the run, before the rest is loaded
  if (context_.settings.BreakType != break_type::kScheduledStopSet) {
    screen.Command4.Enable();
    screen.Label8.SetCaption("Stop Sets: [Disabled]");
  }
  if (context_.settings.BreakType != break_type::kNone) LoadSpotRotation();
  screen.Overlap.ReadFile();
  screen.Overlap.save.Hide();
  screen.Overlap.save.Disable();
  if (context_.air.deck.running()) {
    // A power cut's record has started it: what the load told on the way is over.
    context_.air.status.Tell(PlaybackText(context_.run.StopSetActive));
  } else {
    scheduler_.TellReady();
    if (!screen.Frame2.visible()) screen.Start.SetFocus();
  }
  screen.Timer4.SetInterval(kSettingsTick);
  screen.SetTitle("Random Playback Mode  [4X]");
}

void RandomPlayback::PrepareScreen() {
  RandomForm1& screen = context_.screen;
  context_.air.deck.EndAll(EndCause::kOperator);
  screen.Run.HideBeforeRun();
  screen.Timer2.SetEnabled(true);
  screen.Switches.ReadFiles();  // before a run that the load itself may start: its first item is proof too
  screen.List6.AddFault("-- error log --");
  SkipAndGoOn(WriteTextSetting(context_.platform.files, station_paths::kResetRandom, "0"));
}

void RandomPlayback::ShowProgress(int count, const char* what) {
  const SteadyTime now = context_.platform.clock.Steady();
  if (SecondsBetween(last_progress_, now) < kProgressSeconds) return;
  last_progress_ = now;
  context_.air.status.Tell(std::to_string(count) + what);
  context_.screen.Repaint();
}

void RandomPlayback::ShowPoolRow(const std::string& mark, const PoolRow& row) {
  shown_pools_.emplace_back(row.RecordingId, mark + row.RecordingId + "  " + row.Title);
}

/// By id, so that a song can be found; the pools themselves keep the folder's order.
void RandomPlayback::ShowPools() {
  std::sort(shown_pools_.begin(), shown_pools_.end());
  for (auto& [id, row] : shown_pools_) context_.screen.List3.AddRow(std::move(row));
  shown_pools_.clear();
}

/// Recordings went while they were counted.
bool RandomPlayback::RunsDry(const std::vector<std::string>& ids, int count) {
  if (static_cast<int>(ids.size()) >= count) return false;
  context_.platform.dialogs.MessageBox("There are not enough files recorded", box_style::kOk, "Quixair");
  context_.platform.screens.Unload(context_.screen);
  return true;
}

bool RandomPlayback::LoadMusic() {
  Files& files = context_.platform.files;
  Pool& music = context_.pools.music;
  music.Clear();
  const int count = GetFileMuscount(files) + 1;
  if (count == 1) {  // none, or just one
    context_.air.status.Tell("NO MUSIC FILES FOUND");
    RefuseLibrary(context_.platform, "Not Enough Music Files",
                  "In order to use this mode, you must first record several music files.  This program\n"
                  "will terminate.  Please record at least three (3) music files before using this mode.");
  }
  const std::vector<std::string> ids = ListRecordings(files, "M*.DAT");
  if (RunsDry(ids, count)) return false;
  music.Reserve(count);
  for (const std::string& id : ids) {
    music.Add(ReadSong(files, id));
    ShowPoolRow("", music.row(music.count()));
    ShowProgress(music.count(), " Files Found...");
  }
  return true;
}

bool RandomPlayback::LoadLiners() {
  Files& files = context_.platform.files;
  Pool& liners = context_.pools.liners;
  liners.Clear();
  const int count = GetFileLinerCount(files) + 1;
  // The settings are read after this, so on a first load liners are still off here and the test passes.
  if (count < 2 && context_.settings.LinerEnable == 1) {
    RefuseLibrary(context_.platform, "Not Enough Liner Files",
                  "In order to use this mode, you must first record several Liner files.  This program\n"
                  "will terminate.  Please record at least three (3) Liner files before using this mode.");
  }
  std::vector<std::string> ids = ListRecordings(files, "L*.DAT");
  if (RunsDry(ids, count)) return false;
  context_.air.status.Tell(std::to_string(count) + " Files Found...");
  // Only these two spellings: "lL", "ll" and the "Magic Call" liners stay in the pool.
  std::erase_if(ids, [](const std::string& id) { return id.starts_with("LL") || id.starts_with("Ll"); });
  if (ids.size() < 2) {
    RefuseLibrary(
        context_.platform, "Not Enough Regular Liner (L*.DAT) Files",
        "In order to use this mode, you must first record several Regular Liner files.  Regular Liners\n"
        "start with L, but not LL (legal) or LM (Magic Call).  This program will terminate.");
  }
  for (const std::string& id : ids) {
    liners.Add(ReadLiner(files, id));
    ShowPoolRow("", liners.row(liners.count()));
  }
  return true;
}

bool RandomPlayback::LoadLegalIds() {
  Files& files = context_.platform.files;
  Pool& legal_ids = context_.pools.legal_ids;
  legal_ids.Clear();
  const int count = GetFilelegalcount(files) + 1;
  if (count < 2) {
    RefuseLibrary(context_.platform, "Not Enough Legal I.D. (LL*.DAT) Files",
                  "In order to use this mode, you must first record several Legal I.D. files.\n"
                  "Legal I.D. files start with LL.  This program will terminate.");
  }
  const std::vector<std::string> ids = ListRecordings(files, "LL*.DAT");
  if (RunsDry(ids, count)) return false;
  context_.air.status.Tell(std::to_string(count) + " Files Found...");
  for (const std::string& id : ids) {
    legal_ids.Add(ReadLegalId(files, id));
    ShowPoolRow("^ ", legal_ids.row(legal_ids.count()));
  }
  return true;
}

void RandomPlayback::ReadSettings() {
  context_.settings = ReadRandomSettings(context_.platform.files);
  ApplyPlaybackDefaults(context_.settings);
  // Breaks that are switched on in mid-run have their spots at once.
  const bool wants_spots = context_.settings.BreakType != break_type::kNone;
  if (wants_spots && context_.air.deck.running() && context_.pools.spots.count() == 0) LoadSpotRotation();
  ListBox& list = context_.screen.List4;
  if (list.row_count() >= 3) list.Clear();
  for (std::string& row : SettingsPrintOut(context_.settings)) list.AddRow(std::move(row));
}

void RandomPlayback::LoadStatus(bool at_load) {
  if (at_load) scheduler_.Reset();
  ReadSettings();
  const RestartRecord record = at_load ? ReadRestartRecord(context_.platform.files) : RestartRecord();
  const bool restarts = record.running && record.mode == kRandomMode;
  if (restarts) AnnounceRestart();
  if (context_.settings.BreakType == break_type::kScheduledStopSet) {
    scheduler_.PrepareTemplateChoice(restarts);
    // A run that knew no template leaves the operator's last choice in force.
    const std::string& name = record.template_name.empty() ? context_.run.TemplateName : record.template_name;
    if (restarts && !name.empty()) scheduler_.TakeTemplate(std::string(name));
  }
  if (restarts) controls_.Start();
}

void RandomPlayback::AnnounceRestart() {
  const CivilTime now = context_.platform.clock.Now();
  const std::string time = HourMinuteSecond24(now);
  context_.screen.List6.AddFault(ShortDate(now) + "  Auto-Restart Complete: " + time);
  // Two blanks on purpose: the engineer's eye finds the line by them.
  SkipAndGoOn(LogError(
      context_.platform.files,
      ErrorLineStart(ModeLetter::kRandom, now) + "  Auto-Restart Complete: " + time + "  " + ShortDate(now)));
}

void RandomPlayback::LoadSpotRotation() {
  RandomForm1& screen = context_.screen;
  Files& files = context_.platform.files;
  Pool& spots = context_.pools.spots;
  const auto tell = [this](const std::string& text) {
    if (!context_.air.deck.running()) context_.air.status.Tell(text);
  };
  tell("Loading Spot/PSA Rotation File...");
  screen.List5.Clear();
  screen.List5.AddRow("--Internal Random List--");
  spots.Clear();
  const std::string content = files.Read(station_paths::kRotation).value_or({});
  const std::vector<TemplateEvent> events = EventsToFirstEmpty(content, kMaxTemplateLines);
  for (const TemplateEvent& event : events) {
    screen.List5.AddRow(event.EventId);
    spots.Add(ReadRotationSpot(files, event.EventId));
  }
  tell(events.empty() ? "NO SPOT ROTATION FILES FOUND!!!"
                      : std::to_string(spots.count()) + " Spots/PSA's Found...");
  screen.Repaint();
}

}  // namespace quixair
