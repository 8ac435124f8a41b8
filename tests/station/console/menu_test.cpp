#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

struct Item {
  const char* name;
  const char* leads_to;  // "screen NAME", "run COMMAND", "box"
};

constexpr Item kItems[] = {
    {"Exit", "box"},
    {"Spots", "screen RecordSpot"},
    {"Music", "screen RecordASong"},
    {"Liners", "screen RecordLiner"},
    {"AutoTimeRecord", "screen AutoTime"},
    {"ImportFile", "screen ImportWin"},
    {"FastImporter", "screen ImportWinAuto"},
    {"ArtistTitleEditor", "screen ArtistTitle"},
    {"WindowsRecorder", "run C:\\WINDOWS\\SNDREC32.EXE"},
    {"EnahncedMixer", "hidden"},
    {"DiskMon", "run C:\\QXAIR\\VOLWATCH.EXE minimised"},
    {"RandomPlaybackMode", "screen RandomForm1"},
    {"EditSpotPSAFile", "screen BuildTemplate1"},
    {"SetRandomDefaults", "screen RandomSetup"},
    {"OnAirAssist", "screen BuildTemplate1"},
    {"ImmediatePickList", "screen BuildTemplate1"},
    {"RunTemplate", "screen PickPlayTemplate"},
    {"EditTemplate", "screen BuildTemplate"},
    {"PrintTemplateContents", "screen PrintPickListTemplate"},
    {"BackupPickList", "screen ExportTemplate"},
    {"RestorePickList", "screen ImportTemplate"},
    {"EraseCustomPickList", "screen ErasePickCustom"},
    {"ResumeLastPick", "hidden"},
    {"RunSatTemplate", "screen SatPlayTemplate"},
    {"EditSatTemplate", "screen BuildTemplate"},
    {"PrintSatTemplate", "screen PrintSatTemplateMDI"},
    {"BackupSatTemplate", "screen ExportTemplate"},
    {"RestoreSatTemplate", "screen ImportTemplate"},
    {"CopySatTemplateData", "screen CopySatTemp"},
    {"SatRemoveSpots", "screen RemoveSatSpot"},
    {"EraseSatCustom", "screen EraseSimSatCustom"},
    {"SatelliteControlOptions", "run C:\\QXAIR\\FEEDOPTS.EXE"},
    {"Announcer", "box"},
    {"NetworkSwitch", "box"},
    {"VerificationLog", "run C:\\QXAIR\\LOGTRIM.EXE"},
    {"recordplayprop", "run C:\\Windows\\Control.exe"},
    {"DOSMenu", "box"},
    {"EraseRecordings", "screen EraseUtility"},
    {"PrintRecordings", "screen PrintRecordingsMDI"},
    {"AutoRestart", "screen Autostart"},
    {"cacheman", "hidden"},
    {"CustomInfo", "screen CustomInformation"},
    {"AudioDriver", "box"},
    {"ViewErrorLog", "screen ErrorLog"},
    {"Mixer", "run C:\\WINDOWS\\sndvol32.exe maximised"},
    {"WindowsExplorer", "run C:\\WINDOWS\\EXPLORER.EXE"},
    {"UserManua", "screen QXHelp"},
    {"About", "screen frmAbout"},
    {"RecordingDrivers", "screen MMregOCX"},
};

class ConsoleMenu : public StationFixture {
 protected:
  void PutWhatTheEditorNeeds() {
    AddLibrary(3, 2, 2);
    for (const char* id : {"S1", "S2"}) AddSpot(id, 20000);
    PutRotation({"S1", "S2"});
  }

  ConsoleMenu() {
    station_.programs().on_run = [this](const std::string& command_line, WindowState window) {
      const char* states[] = {"", " minimised", " maximised"};
      happened_.push_back("run " + command_line + states[static_cast<int>(window)]);
    };
    station_.on_screen = [this](const std::string& name, bool opened) {
      if (opened) happened_.push_back("screen " + name);
    };
    station_.dialogs().on_box = [this](const simulation::ShownBox& box) {
      happened_.push_back("box");
      last_box_ = box.text;
    };
    station_.programs().on_keys = [this](const std::string& keys) { happened_.push_back("keys " + keys); };
  }
  /// Starts anew and chooses; what came of it.
  std::vector<std::string> Choose(std::string_view item) {
    StartConsole();
    Advance(2800ms);
    happened_.clear();
    Menu(item);
    return happened_;
  }

  std::vector<std::string> happened_;
  std::string last_box_;
};

using Happened = std::vector<std::string>;

TEST_F(ConsoleMenu, EveryItem_LeadsWhereItSays) {
  PutWhatTheEditorNeeds();
  const std::map<std::string, std::string> answers = {{"Exit", "Cancel"},
                                                      {"AudioDriver", "No"},
                                                      {"Announcer", "OK"},
                                                      {"NetworkSwitch", "OK"},
                                                      {"DOSMenu", "OK"}};
  for (const Item& item : kItems) {
    SCOPED_TRACE(item.name);
    if (const auto answer = answers.find(item.name); answer != answers.end()) QueueAnswer(answer->second);
    const bool hidden = std::string(item.leads_to) == "hidden";
    EXPECT_EQ(Choose(item.name), hidden ? Happened{} : Happened{item.leads_to});
    EXPECT_TRUE(station_.running());
  }
}

TEST_F(ConsoleMenu, HandOverFiles_AreWrittenBeforeTheScreenOpens) {
  PutWhatTheEditorNeeds();
  const struct {
    const char* item;
    std::map<std::string, std::string> files;
  } cases[] = {
      {"EditSpotPSAFile", {{"PIKMODE.DTA", "\"3\"\r\n"}, {"PIKNAME.DTA", "\"ROTATWIN.DTA\"\r\n"}}},
      {"OnAirAssist", {{"PIKMODE.DTA", "\"4\"\r\n"}}},
      {"ImmediatePickList", {{"PIKMODE.DTA", "\"1\"\r\n"}}},
      {"EditTemplate", {{"PIKMODE.DTA", "\"0\"\r\n"}}},
      {"EditSatTemplate", {{"PIKMODE.DTA", "\"2\"\r\n"}}},
      {"SatelliteControlOptions", {{"EDITSAT.DTA", "1\r\n"}}},
      {"ImportFile", {{"IMPORT.DAT", ""}}},
  };
  for (const auto& [item, files] : cases) {
    SCOPED_TRACE(item);
    PutFile("QXAIR/IMPORT.DAT", "of another recording");
    std::map<std::string, std::string> seen;
    const auto look = [&, &wanted = files] {
      for (const auto& [name, content] : wanted) seen[name] = FileText("QXAIR/" + name);
    };
    station_.on_screen = [&](const std::string&, bool) { look(); };
    station_.programs().on_run = [&](const std::string&, WindowState) { look(); };
    Choose(item);
    EXPECT_EQ(seen, files);
  }
}

TEST_F(ConsoleMenu, HandOverThatCannotBeWritten_IsToldAndNothingOpens) {
  station_.files().Fail(simulation::FileAct::kWrite, "C:\\QXAIR\\*", RunTimeError::kPathFileAccess);
  for (const char* item : {"EditSpotPSAFile", "OnAirAssist", "ImmediatePickList", "EditTemplate",
                           "EditSatTemplate", "SatelliteControlOptions"}) {
    SCOPED_TRACE(item);
    QueueAnswer("OK");
    EXPECT_EQ(Choose(item), Happened{"box"});
    EXPECT_NE(last_box_.find("[Error 75]"), std::string::npos) << last_box_;
    EXPECT_TRUE(station_.running());
  }
  station_.files().Mend();
  station_.files().Fail(simulation::FileAct::kWrite, "*\\PIKNAME.DTA", RunTimeError::kPathFileAccess);
  QueueAnswer("OK");
  EXPECT_EQ(Choose("EditSpotPSAFile"), Happened{"box"}) << "the second of two files failed";
}

TEST_F(ConsoleMenu, SiblingPrograms_RunWhenTheyAreThereElseTheBoxSaysSo) {
  const std::pair<const char*, const char*> siblings[] = {
      {"Announcer", "VOXPLAN.EXE"}, {"NetworkSwitch", "LINKPLAN.EXE"}, {"DOSMenu", "CONSOLE.EXE"}};
  for (const auto& [item, program] : siblings) {
    SCOPED_TRACE(item);
    QueueAnswer("OK");
    EXPECT_EQ(Choose(item), Happened{"box"});
    EXPECT_EQ(last_box_, "DOS file not found. Please contact Quixair Works to obtain DOS version.");
    PutFile("QXAIR/" + std::string(program), "");
    EXPECT_EQ(Choose(item), Happened{"run C:\\QXAIR\\" + std::string(program)});
  }
}

TEST_F(ConsoleMenu, ControlPanel_GetsItsKeysOnceAfterThreeSeconds) {
  Choose("recordplayprop");
  Advance(2999ms);
  EXPECT_EQ(happened_, Happened{"run C:\\Windows\\Control.exe"});
  Advance(60s);
  EXPECT_EQ(happened_, (Happened{"run C:\\Windows\\Control.exe", "keys mu", "keys {Enter}"}));
  Menu("recordplayprop");
  Advance(60s);
  EXPECT_EQ(happened_.size(), 6U) << "and again at the next time";
}

TEST_F(ConsoleMenu, AudioDriver_IsReinstalledOnYesOnly) {
  PutFile("QXAIR/MMREGOCX.EXE", "program");
  PutFile("WINDOWS/SYSTEM/old.txt", "");
  QueueAnswer("Yes");
  QueueAnswer("OK");
  EXPECT_EQ(Choose("AudioDriver"),
            (Happened{"box", "run C:\\Windows\\System\\MMREGOCX.EXE MMTypesX.OCX MMWaveX.OCX", "box"}));
  EXPECT_EQ(boxes().front().text, "Reinstall Audio Driver? ");
  EXPECT_EQ(last_box_, "Now, please reboot your system to ensure changes have taken effect...");
  EXPECT_EQ(FileText("WINDOWS/SYSTEM/MMREGOCX.EXE"), "program");
}

TEST_F(ConsoleMenu, ScreenThatIsOpen_ComesToTheFrontAsItIs) {
  EXPECT_EQ(Choose("ViewErrorLog"), Happened{"screen ErrorLog"});
  Menu("ViewErrorLog");
  EXPECT_EQ(happened_, Happened{"screen ErrorLog"});
}

}  // namespace
}  // namespace quixair::testing
