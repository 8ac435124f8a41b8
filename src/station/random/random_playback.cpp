#include "station/random/random_playback.h"

#include <chrono>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
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
               .proof = ProofOfAiring(screen.platform(), ModeLetter::kRandom, screen.Switches,
                                      [this](const Status& written) { TellProofWritten(written); }),
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

/// A full disk is told, and told no more when there is room again.
void RandomPlayback::TellProofWritten(const Status& written) {
  TextBox& warning = context_.screen.Text3;
  if (written.error() == RunTimeError::kDiskFull) {
    warning.SetText(kDriveFullWarning);
    warning.Show();
  } else if (written.ok() && warning.visible()) {
    if (warning.text() == kDriveFullWarning) warning.SetText("");
    warning.Hide();
  }
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
  screen.Refresh.on_click = [this] { Load(); };
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
  if (!LoadMusic()) return;
  LoadLiners();
  LoadLegalIds();
  LoadStatus(true);  // on a restart this starts the run, before the rest is loaded
  if (context_.settings.BreakType != break_type::kScheduledStopSet) {
    screen.Command4.Enable();
    screen.Label8.SetCaption("Stop Sets: [Disabled]");
  }
  if (context_.settings.BreakType != break_type::kNone) LoadSpotRotation();
  screen.List1.Clear();  // events come with a template
  screen.Overlap.ReadFile();
  screen.Overlap.save.Hide();
  screen.Overlap.save.Disable();
  if (context_.air.deck.running()) {
    // A power cut's record has started it: what the load told on the way is over.
    if (!rotation_missing_) context_.air.status.Tell(PlaybackText(context_.run.StopSetActive));
  } else if (!screen.Frame2.visible()) {
    context_.air.status.Tell(status_text::kReady);
    screen.Start.SetFocus();
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
  context_.screen.List3.AddRow(mark + row.RecordingId + "  " + row.Title);
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
  if (static_cast<int>(ids.size()) < count) {
    context_.platform.dialogs.MessageBox("There are not enough files recorded", box_style::kOk, "Quixair");
    context_.platform.screens.Unload(context_.screen);
    return false;
  }
  music.Reserve(count);
  for (const std::string& id : ids) {
    music.Add(ReadSong(files, id));
    ShowPoolRow("", music.row(music.count()));
    ShowProgress(music.count(), " Files Found...");
  }
  return true;
}

void RandomPlayback::LoadLiners() {
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
}

void RandomPlayback::LoadLegalIds() {
  Files& files = context_.platform.files;
  Pool& legal_ids = context_.pools.legal_ids;
  legal_ids.Clear();
  const int count = GetFilelegalcount(files) + 1;
  if (count < 2) {
    RefuseLibrary(context_.platform, "Not Enough Legal I.D. (LL*.DAT) Files",
                  "In order to use this mode, you must first record several Legal I.D. files.\n"
                  "Legal I.D. files start with LL.  This program will terminate.");
  }
  context_.air.status.Tell(std::to_string(count) + " Files Found...");
  for (const std::string& id : ListRecordings(files, "LL*.DAT")) {
    legal_ids.Add(ReadLegalId(files, id));
    ShowPoolRow("^ ", legal_ids.row(legal_ids.count()));
  }
}

void RandomPlayback::ReadSettings() {
  context_.settings = ReadRandomSettings(context_.platform.files);
  ApplyPlaybackDefaults(context_.settings);
  if (rotation_missing_) context_.settings.BreakType = break_type::kNone;
  ListBox& list = context_.screen.List4;
  if (list.row_count() >= 3) list.Clear();
  for (std::string& row : SettingsPrintOut(context_.settings)) list.AddRow(std::move(row));
}

void RandomPlayback::LoadStatus(bool at_load) {
  if (at_load) {
    rotation_missing_ = false;
    scheduler_.Reset();
  }
  ReadSettings();
  const RestartRecord record = at_load ? ReadRestartRecord(context_.platform.files) : RestartRecord();
  if (record.running) AnnounceRestart();
  if (context_.settings.BreakType == break_type::kScheduledStopSet) {
    scheduler_.PrepareTemplateChoice(record.running);
    if (record.running) scheduler_.TakeTemplate(record.template_name);
  }
  if (record.running) controls_.Start();
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
  context_.air.status.Tell("Loading Spot/PSA Rotation File...");
  screen.List5.Clear();
  screen.List5.AddRow("--Internal Random List--");
  spots.Clear();
  const std::string content = files.Read(station_paths::kRotation).value_or({});
  const std::vector<TemplateEvent> events = EventsToFirstEmpty(content, kMaxTemplateLines);
  if (events.empty()) {
    context_.air.status.Tell("NO SPOT ROTATION FILES FOUND!!!");
    rotation_missing_ = true;
    context_.settings.BreakType = break_type::kNone;
    return;
  }
  for (const TemplateEvent& event : events) screen.List5.AddRow(event.EventId);
  for (const TemplateEvent& event : events) {
    spots.Add(ReadRotationSpot(files, event.EventId));
    ShowProgress(spots.count(), " Spots/PSA's Found...");
  }
}

}  // namespace quixair
