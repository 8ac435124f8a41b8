#include "station/console/console.h"

#include <chrono>

#include "station/console/audio_driver.h"
#include "station/console/console_title.h"
#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"

namespace quixair {
namespace {

using std::chrono::milliseconds;
constexpr milliseconds kSplashTime{2800};
constexpr milliseconds kControlPanelTime{3000};  // gives the control panel time to appear

const std::vector<std::string> kPickListDays = {"MON.TPT", "TUE.TPT", "WED.TPT", "THU.TPT",
                                                "FRI.TPT", "SAT.TPT", "SUN.TPT"};
const std::vector<std::string> kSatelliteDays = {"MON.TPD", "TUE.TPD", "WED.TPD", "THU.TPD",
                                                 "FRI.TPD", "SAT.TPD", "SUN.TPD"};

}  // namespace

Console::Console(const Platform& platform) : Screen(platform, "Console", ConsoleTitle({})) {
  for (MenuItem* item : {&EnahncedMixer, &ResumeLastPick, &cacheman}) {
    item->Disable();
    item->Hide();
  }
  Timer1.on_tick = [this] {
    if (Screen* splash = platform_.screens.Find("frmSplash")) platform_.screens.Unload(*splash);
    Show();  // again at every later tick, which is harmless
  };
  Timer3.SetEnabled(false);
  Timer3.on_tick = [this] {
    platform_.programs.SendKeys("mu");
    platform_.programs.SendKeys("{Enter}");
    Timer3.SetEnabled(false);
  };
  Exit.on_click = [this] { ConfirmExit(); };
  ConnectRecord();
  ConnectRandom();
  ConnectPickList();
  ConnectSatellite();
  ConnectUtilities();
  ConnectHelp();
}

void Console::Load() {
  const std::string station_line =
      ReadSetting(platform_.files, station_paths::kCustom).value_or(std::string());
  SetTitle(ConsoleTitle(station_line));
  ResumeInterruptedRun();
  PrepareOrShowSplash();
}

void Console::ResumeInterruptedRun() {
  if (ReadSetting(platform_.files, station_paths::kResetOn) != "1") return;
  const RestartRecord record = ReadRestartRecord(platform_.files);
  if (!record.running) return;
  if (record.mode == kRandomMode) platform_.screens.Open("RandomForm1");
  if (record.mode == kPickListMode) platform_.screens.Open("PickListForm1");
}

void Console::PrepareOrShowSplash() {
  if (platform_.files.Exists(station_paths::kPrepared)) {
    Hide();
    Timer1.SetInterval(kSplashTime);
    platform_.screens.Open("frmSplash");
    return;
  }
  const Answer answer = platform_.dialogs.MessageBox(
      "Welcome to The Quixair.  Your software\nhas detected that this is a new install. \n"
      "Press OK to prepare your system.",
      box_style::kOkCancel + box_style::kInformation, "Getting Ready for First Use");
  if (answer == Answer::kOk) platform_.screens.Open("MMregOCX");
}

void Console::ConfirmExit() {
  const Answer answer = platform_.dialogs.MessageBox("Are you sure you want to exit?",
                                                     box_style::kOkCancel + box_style::kQuestion, "Quixair");
  if (answer == Answer::kCancel) return;
  SkipAndGoOn(WriteCleanExitRecord(platform_.files));
  EndProgram();
}

bool Console::MayEndRun() {
  if (platform_.screens.OnTheAir() == nullptr) return true;
  return platform_.dialogs.MessageBox("Playback is on the air. End the run?",
                                      box_style::kYesNo + box_style::kQuestion, "Quixair") == Answer::kYes;
}

void Console::CloseWindow() {
  if (!MayEndRun()) return;
  if (ReadSetting(platform_.files, station_paths::kResetRandom) == "1") {
    SkipAndGoOn(WriteTextSetting(platform_.files, station_paths::kResetRandom, "0"));
  } else {
    SkipAndGoOn(WriteCleanExitRecord(platform_.files));
  }
  EndProgram();
}

void Console::OpenOnClick(MenuItem& item, const char* screen, ScreenOpening opening) {
  item.on_click = [this, screen, opening = std::move(opening)] { platform_.screens.Open(screen, opening); };
}

void Console::EditOnClick(MenuItem& item, const char* pik_mode, const char* screen, ScreenOpening opening) {
  item.on_click = [this, pik_mode, screen, opening = std::move(opening)] {
    if (HandedOver(WriteTextSetting(platform_.files, station_paths::kPikMode, pik_mode))) {
      platform_.screens.Open(screen, opening);
    }
  };
}

bool Console::HandedOver(const Status& written) {
  if (!written.ok()) TellFileFault(platform_.dialogs, written, "The screen cannot be opened.");
  return written.ok();
}

void Console::RunSibling(const char* path) {
  if (platform_.files.Exists(path)) {
    platform_.programs.Run(path);
    return;
  }
  platform_.dialogs.MessageBox("DOS file not found. Please contact Quixair Works to obtain DOS version.",
                               box_style::kOk, "Quixair");
}

void Console::ConnectRecord() {
  OpenOnClick(Spots, "RecordSpot");
  OpenOnClick(Music, "RecordASong");
  OpenOnClick(Liners, "RecordLiner");
  OpenOnClick(AutoTimeRecord, "AutoTime");
  ImportFile.on_click = [this] {
    SkipAndGoOn(platform_.files.Delete(station_paths::kImportRequest));
    platform_.screens.Open("ImportWin");
  };
  OpenOnClick(FastImporter, "ImportWinAuto");
  OpenOnClick(ArtistTitleEditor, "ArtistTitle");
  WindowsRecorder.on_click = [this] { platform_.programs.Run("C:\\WINDOWS\\SNDREC32.EXE"); };
  EnahncedMixer.on_click = [this] {
    platform_.dialogs.MessageBox("The enhanced mixer is a program of its own and opens minimised.",
                                 box_style::kInformation, "Quixair");
    platform_.programs.Run("C:\\Progra~1\\XG-GS Enhanced Mixer\\AMIX95.EXE", WindowState::kMinimised);
  };
  DiskMon.on_click = [this] { platform_.programs.Run("C:\\QXAIR\\VOLWATCH.EXE", WindowState::kMinimised); };
}

void Console::ConnectRandom() {
  OpenOnClick(RandomPlaybackMode, "RandomForm1");
  EditSpotPSAFile.on_click = [this] {
    if (HandedOver(WriteTextSetting(platform_.files, station_paths::kPikMode, "3")) &&
        HandedOver(WriteTextSetting(platform_.files, station_paths::kPikName, "ROTATWIN.DTA"))) {
      platform_.screens.Open("BuildTemplate1");
    }
  };
  OpenOnClick(SetRandomDefaults, "RandomSetup");
}

void Console::ConnectPickList() {
  EditOnClick(OnAirAssist, "4", "BuildTemplate1");
  EditOnClick(ImmediatePickList, "1", "BuildTemplate1");
  OpenOnClick(RunTemplate, "PickPlayTemplate");
  EditOnClick(EditTemplate, "0", "BuildTemplate",
              {.title = {}, .patterns = {"*.TPP"}, .day_files = kPickListDays, .captions = {}});
  OpenOnClick(PrintTemplateContents, "PrintPickListTemplate");
  OpenOnClick(BackupPickList, "ExportTemplate",
              {.title = "Quixair Export Template (Pick-List)",
               .patterns = {"*.TPP", "*.TPT"},
               .day_files = {},
               .captions = {}});
  OpenOnClick(RestorePickList, "ImportTemplate",
              {.title = "Quixair Import Template (Pick-List)",
               .patterns = {"*.TPT;*.TPP"},
               .day_files = {},
               .captions = {"Pick-List Files in Source:", "Pick-List Templates in use:"}});
  OpenOnClick(EraseCustomPickList, "ErasePickCustom");
  ResumeLastPick.on_click = [this] { ResumeLastPickList(); };
}

void Console::ResumeLastPickList() {
  const std::string name = ReadSetting(platform_.files, station_paths::kStorePik).value_or(std::string());
  if (name.empty() || !platform_.files.Exists(station_paths::TemplateFile(name))) {
    platform_.dialogs.MessageBox("Sorry, the last used template cannot be found", box_style::kOk, "Quixair");
    return;
  }
  platform_.screens.Open("PickListForm1");
}

void Console::ConnectSatellite() {
  OpenOnClick(RunSatTemplate, "SatPlayTemplate");
  EditOnClick(EditSatTemplate, "2", "BuildTemplate",
              {.title = "Select Template (Satellite/Random)",
               .patterns = {"*.TPL"},
               .day_files = kSatelliteDays,
               .captions = {}});
  OpenOnClick(PrintSatTemplate, "PrintSatTemplateMDI");
  OpenOnClick(BackupSatTemplate, "ExportTemplate",
              {.title = "Quixair Export Template (Simple-Sat)",
               .patterns = {"*.TPL", "*.TPD"},
               .day_files = {},
               .captions = {}});
  OpenOnClick(RestoreSatTemplate, "ImportTemplate",
              {.title = "Quixair Import Template (Simple-Sat)",
               .patterns = {"*.TPL;*.TPD"},
               .day_files = {},
               .captions = {"Simple-Sat Files in Source:", "Simple-Sat Templates in use:"}});
  OpenOnClick(CopySatTemplateData, "CopySatTemp");
  OpenOnClick(SatRemoveSpots, "RemoveSatSpot");
  OpenOnClick(EraseSatCustom, "EraseSimSatCustom");
  SatelliteControlOptions.on_click = [this] {
    if (HandedOver(WriteNumberSetting(platform_.files, station_paths::kEditSat, 1))) {
      platform_.programs.Run("C:\\QXAIR\\FEEDOPTS.EXE");
    }
  };
  Announcer.on_click = [this] { RunSibling("C:\\QXAIR\\VOXPLAN.EXE"); };
  NetworkSwitch.on_click = [this] { RunSibling("C:\\QXAIR\\LINKPLAN.EXE"); };
  VerificationLog.on_click = [this] { platform_.programs.Run("C:\\QXAIR\\LOGTRIM.EXE"); };
}

void Console::ConnectUtilities() {
  recordplayprop.on_click = [this] {
    platform_.programs.Run("C:\\Windows\\Control.exe");
    Timer3.SetInterval(kControlPanelTime);
    Timer3.SetEnabled(true);
  };
  DOSMenu.on_click = [this] { RunSibling("C:\\QXAIR\\CONSOLE.EXE"); };
  OpenOnClick(EraseRecordings, "EraseUtility");
  OpenOnClick(PrintRecordings, "PrintRecordingsMDI");
  OpenOnClick(AutoRestart, "Autostart");
  cacheman.on_click = [this] {
    platform_.dialogs.MessageBox("An outside memory manager can be installed beside this program.",
                                 box_style::kInformation, "Quixair");
  };
  OpenOnClick(CustomInfo, "CustomInformation");
  AudioDriver.on_click = [this] { ReinstallAudioDriver(); };
  OpenOnClick(ViewErrorLog, "ErrorLog");
  Mixer.on_click = [this] { platform_.programs.Run("C:\\WINDOWS\\sndvol32.exe", WindowState::kMaximised); };
  WindowsExplorer.on_click = [this] { platform_.programs.Run("C:\\WINDOWS\\EXPLORER.EXE"); };
}

void Console::ReinstallAudioDriver() {
  const Answer answer = platform_.dialogs.MessageBox("Reinstall Audio Driver? ",
                                                     box_style::kYesNo + box_style::kQuestion, "Quixair");
  if (answer != Answer::kYes) return;
  RegisterAudioDriver(platform_);
  platform_.dialogs.MessageBox("Now, please reboot your system to ensure changes have taken effect...",
                               box_style::kOk, "Quixair");
}

void Console::ConnectHelp() {
  OpenOnClick(UserManua, "QXHelp");
  OpenOnClick(About, "frmAbout");
  OpenOnClick(RecordingDrivers, "MMregOCX");
}

}  // namespace quixair
