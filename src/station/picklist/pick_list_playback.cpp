#include "station/picklist/pick_list_playback.h"

#include <array>
#include <chrono>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/pick_list_form1.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/platform/programs.h"

namespace quixair {

PickListPlayback::PickListPlayback(PickListForm1& screen)
    : context_{.screen = screen,
               .platform = screen.platform(),
               .events = {},
               .state = {},
               .faults = AirFaultLog(screen.platform().files, screen.platform().clock, ModeLetter::kPickList,
                                     [&screen](std::string row) { screen.List6.AddFault(std::move(row)); })},
      engine_(context_),
      controls_(context_, engine_),
      watcher_(context_, engine_, controls_),
      overlap_(context_, engine_) {
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
  screen.Run.GoLive.on_click = [this] { controls_.GoLive(); };
  screen.Timer1.on_tick = [this] { controls_.StartWhenDue(); };
  screen.Timer2.on_tick = [this] { watcher_.Tick(); };
  screen.Timer3.on_tick = [this] { overlap_.Tick(); };
  screen.Channels.ConnectBars([this] { return controls_.BarMayContinue(true); },
                              [this] { return controls_.BarMayContinue(false); },
                              [this] { controls_.Continue(); });
}

void PickListPlayback::ConnectSettings() {
  PickListForm1& screen = context_.screen;
  screen.List1.on_click = [this] { controls_.ChooseFirstEvent(); };
  screen.Command4.on_click = [&screen] { screen.StartTime.OpenFrame(); };
  screen.Remaining.on_click = [this] { controls_.TellAboutRemaining(); };
  screen.Command1.on_click = [this] { ToggleCover(); };
  screen.OLE1.on_click = [this] { context_.platform.programs.Run("C:\\WINDOWS\\sndvol32.exe"); };
  screen.Check1.on_click = [this, &screen] {
    context_.state.RepeatOn = screen.Check1.ticked() ? 1 : 0;
    screen.Check1.SetCaption(screen.Check1.ticked() ? "Repeat: ON" : "Repeat: OFF");
    SkipAndGoOn(
        WriteNumberSetting(context_.platform.files, station_paths::kPickRepeat, context_.state.RepeatOn));
  };
}

void PickListPlayback::ToggleCover() {
  PickListForm1& screen = context_.screen;
  const bool show = !screen.Text4.visible();
  screen.Text4.Show(show);
  screen.Command1.SetCaption(show ? "Hide" : "");
}

bool PickListPlayback::Activate() {
  PickListState& state = context_.state;
  if (state.ScreenActivated == 1) return true;
  state.ScreenActivated = 1;
  state.CurrentEvent = 1;
  state.ProgramTimeNow = 0;
  state.TotalSeconds = state.TotalAtLoad;
  state.ProgramTimeSum = 0;
  state.AutoRestarted = 0;
  TakeRestartRecord();
  if (state.NextDayLoad != 1) PrepareScreen();
  if (!ReadList()) return false;
  FillLists();
  StartByItself();
  return true;
}

void PickListPlayback::TakeRestartRecord() {
  PickListState& state = context_.state;
  if (!context_.platform.files.Exists(station_paths::kReset)) return;
  const RestartRecord record = ReadRestartRecord(context_.platform.files);
  state.TemplateName = record.template_name;
  if (!record.running || record.mode != kPickListMode) return;
  state.FirstEvent = record.event_number;
  state.AutoRestarted = 1;
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
  screen.Channels.MMControl1.Command(ChannelCommand::kClose);
  screen.Channels.MMControl2.Command(ChannelCommand::kClose);
  screen.Switches.ReadFiles();
  screen.Text1.SetText("Loading data for PICKLIST.DTA...");
  context_.state.PikModeValue =
      ReadSetting(context_.platform.files, station_paths::kPikMode).value_or(std::string());
}

/// False when the next day's template has gone since it was looked for.
bool PickListPlayback::ReadList() {
  PickListForm1& screen = context_.screen;
  PickListState& state = context_.state;
  Files& files = context_.platform.files;
  context_.events = EventTable();
  Status read;
  if (state.PikModeValue == "1" || state.PikModeValue == "4") {
    read = context_.events.ReadHandOver(files);
  } else if (state.PikModeValue == "0") {
    if (state.NextDayLoad == 1) {
      screen.List3.Clear();
      screen.Text1.SetText("Loading data for Next Day");
    }
    state.TemplateName = ReadSetting(files, station_paths::kStorePik).value_or(std::string());
    screen.Label7.SetCaption(state.TemplateName);
    read = context_.events.ReadTemplate(files, state.TemplateName);
  }
  if (read.error() == RunTimeError::kFileNotFound && state.NextDayLoad == 1) return false;
  TellFault(read);
  TellFault(context_.events.ReadDataFiles(files));
  state.TotalSeconds = context_.events.TotalSeconds();
  state.TotalAtLoad = state.TotalSeconds;
  return true;
}

/// Nobody is there to answer a box: it would keep the station silent until morning.
bool PickListPlayback::Unattended() const {
  return context_.state.AutoRestarted == 1 || context_.state.NextDayLoad == 1;
}

void PickListPlayback::TellFault(const Status& fault) {
  const RunTimeError error = fault.error();
  if (fault.ok() || error == RunTimeError::kBadFileName) return;
  Dialogs& dialogs = context_.platform.dialogs;
  const std::string& name = context_.state.TemplateName;
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
    context_.faults.Add(title, ' ' + title + (torn ? "" : " Error = " + std::to_string(fault.number())));
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
  PickListState& state = context_.state;
  screen.List1.Clear();
  for (int number = 1; number <= context_.events.EventCount(); ++number) {
    screen.List1.AddRow(EventRow(number, context_.events.event(number)));
  }
  screen.Overlap.ReadFile();
  state.RepeatOn = ReadNumberSetting(context_.platform.files, station_paths::kPickRepeat) == 1 ? 1 : 0;
  screen.Check1.Tick(state.RepeatOn == 1);
  screen.Check1.SetCaption(state.RepeatOn == 1 ? "Repeat: ON" : "Repeat: OFF");
  if (context_.events.EventCount() == 1) {
    screen.Overlap.List2.Select(0);
    screen.Overlap.List2.Disable();
    screen.Overlap.save.Hide();
    screen.Overlap.caption.SetCaption("[Can't Overlap]");
  }
  screen.List6.AddFault("-- error log --");
  screen.Text1.SetText("Ready to Begin Playback.  Press START to begin, or QUIT to Exit");
}

void PickListPlayback::StartByItself() {
  PickListState& state = context_.state;
  if (state.NextDayLoad == 1) controls_.Start();
  if (state.AutoRestarted != 1) return;
  state.AutoRestarted = 0;
  const CivilTime now = context_.platform.clock.Now();
  const std::string row = "Auto-Restart Complete: " + HourMinuteSecond24(now) + "  " + ShortDate(now);
  context_.screen.List6.AddFault(row);
  SkipAndGoOn(LogError(context_.platform.files, ErrorLineStart(ModeLetter::kPickList, now) + ' ' + row));
  controls_.Start();
}

}  // namespace quixair
