#include "station/picklist/pick_list_playback.h"

#include <array>
#include <chrono>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/pick_list_form1.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kChannelPollTick{190};  // Random polls at 210
constexpr double kTogetherSeconds = 1;                      // Random says ten seconds

}  // namespace

PickListPlayback::PickListPlayback(PickListForm1& screen)
    : context_{.screen = screen,
               .platform = screen.platform(),
               .air = OnAir(screen, {.mode = ModeLetter::kPickList,
                                     .channel_poll = kChannelPollTick,
                                     .together_seconds = kTogetherSeconds}),
               .proof =
                   ProofOfAiring(screen.platform(), ModeLetter::kPickList, screen.Switches,
                                 [this](const Status& written) { context_.air.TellProofWritten(written); }),
               .events = {},
               .run = {}},
      engine_(context_),
      controls_(context_, engine_),
      watcher_(context_, engine_, controls_),
      overlap_(context_, engine_) {
  context_.air.deck.Observe(context_.proof);
  engine_.activate = [this] { return Activate(); };
  ConnectControls();
  ConnectSettings();
}

void PickListPlayback::ConnectControls() {
  PickListForm1& screen = context_.screen;
  screen.Start.on_click = [this] { controls_.Start(); };
  screen.Command2.on_click = [this] { controls_.Quit(); };
  screen.Run.EndRunCommand.on_click = [this] { controls_.EndRun(); };
  screen.EscapeCommand.on_click = [this] { controls_.EndRun(); };
  screen.Run.PauseCommand.on_click = [this] { controls_.Pause(); };
  screen.Run.ContinueCommand.on_click = [this] { controls_.Continue(); };
  screen.Run.BeginNextCommand.on_click = [this] { controls_.BeginNext(); };
  screen.Run.RequeueCommand.on_click = [this] { controls_.Requeue(); };
  screen.Run.GoLive.on_click = [this] { context_.air.GoLive(); };
  screen.Timer1.on_tick = [this] { context_.air.StartWhenDue([this] { controls_.Start(); }); };
  screen.Timer2.on_tick = [this] { watcher_.Tick(); };
  screen.Timer3.on_tick = [this] { overlap_.Tick(); };
  screen.Channels.ConnectBars([this] { return context_.air.BarMayContinue(true); },
                              [this] { return context_.air.BarMayContinue(false); },
                              [this] { controls_.Continue(); });
}

void PickListPlayback::ConnectSettings() {
  PickListForm1& screen = context_.screen;
  screen.List1.on_click = [this] { controls_.ChooseFirstEvent(); };
  screen.Command4.on_click = [&screen] { screen.StartTime.OpenFrame(); };
  screen.Remaining.on_click = [this] { controls_.TellAboutRemaining(); };
  screen.Command1.on_click = [this] { ToggleCover(); };
  screen.Check1.on_click = [this, &screen] {
    context_.run.RepeatOn = screen.Check1.ticked();
    screen.Check1.SetCaption(context_.run.RepeatOn ? "Repeat: ON" : "Repeat: OFF");
    SkipAndGoOn(WriteNumberSetting(context_.platform.files, station_paths::kPickRepeat,
                                   context_.run.RepeatOn ? 1 : 0));
  };
}

void PickListPlayback::ToggleCover() {
  PickListForm1& screen = context_.screen;
  const bool show = !screen.Text4.visible();
  screen.Text4.Show(show);
  screen.Command1.SetCaption(show ? "Hide" : "");
}

bool PickListPlayback::Activate() {
  PickListRun& run = context_.run;
  if (run.ScreenActivated) return true;
  run.ScreenActivated = true;
  run.CurrentEvent = 1;
  run.ProgramTimeNow = 0;
  run.TotalSeconds = run.TotalAtLoad;
  run.ProgramTimeSum = 0;
  run.AutoRestarted = false;
  TakeRestartRecord();
  if (!run.NextDayLoad) PrepareScreen();
  if (!ReadList()) return false;
  FillLists();
  StartByItself();
  return true;
}

void PickListPlayback::LoadAnew() {
  context_.run.ScreenActivated = false;
  context_.run.FirstEvent = 0;
  context_.screen.Label7.SetCaption({});
  Activate();
}

void PickListPlayback::TakeRestartRecord() {
  PickListRun& run = context_.run;
  if (!context_.platform.files.Exists(station_paths::kReset)) return;
  const RestartRecord record = ReadRestartRecord(context_.platform.files);
  run.TemplateName = record.template_name;
  if (!record.running || record.mode != kPickListMode) return;
  run.FirstEvent = record.event_number;
  run.AutoRestarted = true;
}

/// On a restart the record tells what was playing; a screen opened beside the run may have handed over since.
std::string PickListPlayback::ModeHandedOver() const {
  std::string mode = ReadSetting(context_.platform.files, station_paths::kPikMode).value_or("");
  if (!context_.run.AutoRestarted) return mode;
  const TemplateKind kind = KindOfTemplate(context_.run.TemplateName);
  if (kind == TemplateKind::kPickCustom || kind == TemplateKind::kPickDaily) return "0";
  return mode == "4" ? "4" : "1";
}

void PickListPlayback::PrepareScreen() {
  PickListForm1& screen = context_.screen;
  screen.Run.HideBeforeRun();
  for (std::size_t row = 0; row < 2; ++row) {
    screen.TotalRemain[row].Hide();
    screen.TotalLineup[row].Hide();
  }
  for (Control* control : std::array<Control*, 3>{&screen.Remaining, &screen.Lineup, &screen.EventLbl}) {
    control->Hide();
  }
  screen.Timer2.SetEnabled(true);
  context_.air.deck.EndAll(EndCause::kOperator);
  screen.Switches.ReadFiles();
  context_.air.status.Tell("Loading data for PICKLIST.DTA...");
  context_.run.PikModeValue = ModeHandedOver();
}

/// False when the next day's template has gone since it was looked for.
bool PickListPlayback::ReadList() {
  PickListForm1& screen = context_.screen;
  PickListRun& run = context_.run;
  Files& files = context_.platform.files;
  context_.events = EventTable();
  Status read;
  if (run.PikModeValue == "1" || run.PikModeValue == "4") {
    read = context_.events.ReadHandOver(files);
  } else if (run.PikModeValue == "0") {
    if (run.NextDayLoad) {
      screen.List3.Clear();
      context_.air.status.Tell("Loading data for Next Day");
    }
    if (!run.AutoRestarted) {
      const auto stored = files.Read(station_paths::kStorePik);
      if (!stored.ok()) read = stored.status();
      run.TemplateName = ReadSetting(files, station_paths::kStorePik).value_or(std::string());
    }
    screen.Label7.SetCaption(run.TemplateName);
    if (read.ok()) read = context_.events.ReadTemplate(files, run.TemplateName);
  }
  if (read.error() == RunTimeError::kFileNotFound && run.NextDayLoad) return false;
  TellFault(read);
  TellFault(context_.events.ReadDataFiles(files));
  run.TotalSeconds = context_.events.TotalSeconds();
  run.TotalAtLoad = run.TotalSeconds;
  return true;
}

/// Nobody is there to answer a box: it would keep the station silent until morning.
bool PickListPlayback::Unattended() const {
  return context_.run.AutoRestarted || context_.run.NextDayLoad;
}

void PickListPlayback::TellFault(const Status& fault) {
  const RunTimeError error = fault.error();
  if (fault.ok() || error == RunTimeError::kBadFileName) return;
  Dialogs& dialogs = context_.platform.dialogs;
  const std::string& name = context_.run.TemplateName;
  if (error == RunTimeError::kFileNotFound) {
    dialogs.MessageBox(
        "This template wasn't found.  Program will terminate.  Check to see if template exists.\n"
        "This program should not be run alone from the command line or Windows(tm) Explorer.",
        box_style::kCritical, "File Doesn't Exist: " + name + " [Error 53]");
    EndProgram();
  }
  const bool torn = error == RunTimeError::kInputPastEnd;
  const std::string title = torn ? "Possible Data Corruption in: " + name + " [Error 62]"
                                 : "There is a Problem with Template: " + name;
  if (Unattended()) {
    context_.air.faults.Add(title, ' ' + title + (torn ? "" : " Error = " + std::to_string(fault.number())));
    return;
  }
  if (torn) {
    dialogs.MessageBox(
        "This template may contain data abnormalities! Loading will continue, but note\n"
        "that you may experience difficulty during playback. Make sure there are NO empty events in " +
            name + '.',
        box_style::kInformation, title);
    return;
  }
  dialogs.MessageBox(
      "Note the error and check documentation.  You may need to recreate the template\nError = " +
          std::to_string(fault.number()),
      box_style::kExclamation, title);
}

void PickListPlayback::FillLists() {
  PickListForm1& screen = context_.screen;
  PickListRun& run = context_.run;
  screen.List1.Clear();
  for (int number = 1; number <= context_.events.EventCount(); ++number) {
    screen.List1.AddRow(EventRow(number, context_.events.event(number)));
  }
  if (!run.NextDayLoad) screen.Overlap.ReadFile();  // else what the operator chose stays, stored or not
  run.RepeatOn = ReadNumberSetting(context_.platform.files, station_paths::kPickRepeat) == 1;
  screen.Check1.Tick(run.RepeatOn);
  screen.Check1.SetCaption(run.RepeatOn ? "Repeat: ON" : "Repeat: OFF");
  screen.Overlap.Allow(context_.events.EventCount() != 1);
  if (!run.NextDayLoad) screen.List6.AddFault("-- error log --");
  context_.air.status.Tell(status_text::kReady);
}

void PickListPlayback::StartByItself() {
  PickListRun& run = context_.run;
  if (run.NextDayLoad) controls_.Start();
  if (!run.AutoRestarted) return;
  run.AutoRestarted = false;
  const CivilTime now = context_.platform.clock.Now();
  const std::string row = "Auto-Restart Complete: " + HourMinuteSecond24(now) + "  " + ShortDate(now);
  context_.screen.List6.AddFault(row);
  SkipAndGoOn(LogError(context_.platform.files, ErrorLineStart(ModeLetter::kPickList, now) + ' ' + row));
  controls_.Start();
}

}  // namespace quixair
