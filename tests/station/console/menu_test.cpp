#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

struct Item {
  const char* name;
  const char* parent;  // empty: on the bar
  const char* caption;
  const char* leads_to;  // "screen NAME", "run COMMAND", "box", "submenu"
};

constexpr Item kItems[] = {
    {"File", "", "&File", "submenu"},
    {"Exit", "File", "E&xit", "box"},
    {"Record", "", "&Record", "submenu"},
    {"Spots", "Record", "&Spots", "screen RecordSpot"},
    {"Music", "Record", "&Music", "screen RecordASong"},
    {"Liners", "Record", "&Liners", "screen RecordLiner"},
    {"AutoTimeRecord", "Record", "&Auto-Time", "screen AutoTime"},
    {"ImportFile", "Record", "&Import File", "screen ImportWin"},
    {"FastImporter", "Record", "&Fast Importer (Music)", "screen ImportWinAuto"},
    {"ArtistTitleEditor", "Record", "&Artist/Title Editor (Music)", "screen ArtistTitle"},
    {"WindowsRecorder", "Record", "&Windows(tm) Recorder", "run C:\\WINDOWS\\SNDREC32.EXE"},
    {"EnahncedMixer", "Record", "&Enhanced Mixer", "hidden"},
    {"DiskMon", "Record", "&Disk Monitor", "run C:\\QXAIR\\VOLWATCH.EXE minimised"},
    {"RandomPlayback", "", "Ra&ndom Playback", "submenu"},
    {"RandomPlaybackMode", "RandomPlayback", "&Random Playback Mode", "screen RandomForm1"},
    {"EditSpotPSAFile", "RandomPlayback", "&Edit Spot/PSA Rotation File", "screen BuildTemplate1"},
    {"SetRandomDefaults", "RandomPlayback", "&Set Random Playback Defaults", "screen RandomSetup"},
    {"OnAirAssist", "", "&On-Air Assist", "screen BuildTemplate1"},
    {"PickListPlayback", "", "&PickList Playback", "submenu"},
    {"ImmediatePickList", "PickListPlayback", "&Immediate Playback", "screen BuildTemplate1"},
    {"RunTemplate", "PickListPlayback", "&Run Template", "screen PickPlayTemplate"},
    {"WorkWithTemplates", "PickListPlayback", "&Work With Templates", "submenu"},
    {"EditTemplate", "WorkWithTemplates", "&Edit Template", "screen BuildTemplate"},
    {"PrintTemplateContents", "WorkWithTemplates", "&Print Template Contents",
     "screen PrintPickListTemplate"},
    {"BackupPickList", "WorkWithTemplates", "&Backup Template (Export)", "screen ExportTemplate"},
    {"RestorePickList", "WorkWithTemplates", "&Restore Template (Import)", "screen ImportTemplate"},
    {"EraseCustomPickList", "WorkWithTemplates", "E&rase Custom Template", "screen ErasePickCustom"},
    {"ResumeLastPick", "PickListPlayback", "Resume &Last", "hidden"},
    {"SatellitePlayback", "", "&Satellite Playback", "submenu"},
    {"RunSatTemplate", "SatellitePlayback", "&Run Template", "screen SatPlayTemplate"},
    {"WorkWithSatTemplates", "SatellitePlayback", "&Work With Templates", "submenu"},
    {"EditSatTemplate", "WorkWithSatTemplates", "&Edit Template", "screen BuildTemplate"},
    {"PrintSatTemplate", "WorkWithSatTemplates", "&Print Template Contents", "screen PrintSatTemplateMDI"},
    {"BackupSatTemplate", "WorkWithSatTemplates", "&Backup Template (Export)", "screen ExportTemplate"},
    {"RestoreSatTemplate", "WorkWithSatTemplates", "&Restore Template (Import)", "screen ImportTemplate"},
    {"CopySatTemplateData", "WorkWithSatTemplates", "&Copy Template Data", "screen CopySatTemp"},
    {"SatRemoveSpots", "WorkWithSatTemplates", "Remove &Spots from Template", "screen RemoveSatSpot"},
    {"EraseSatCustom", "WorkWithSatTemplates", "E&rase Custom Template", "screen EraseSimSatCustom"},
    {"DosSatelliteControls", "SatellitePlayback", "&DOS Satellite Controls", "submenu"},
    {"SatelliteControlOptions", "DosSatelliteControls", "&Satellite Options Menu (DOS)",
     "run C:\\QXAIR\\FEEDOPTS.EXE"},
    {"Announcer", "DosSatelliteControls", "&Adjust Announcer Schedule (DOS)", "box"},
    {"NetworkSwitch", "DosSatelliteControls", "&Network Switching (DOS)", "box"},
    {"VerificationLog", "", "&Verification Log", "run C:\\QXAIR\\LOGTRIM.EXE"},
    {"Utilities", "", "&Utilities", "submenu"},
    {"recordplayprop", "Utilities", "&Recording/Playback Properties", "run C:\\Windows\\Control.exe"},
    {"DOSMenu", "Utilities", "&DOS Menu", "box"},
    {"EraseRecordings", "Utilities", "&Erase Recordings", "screen EraseUtility"},
    {"PrintRecordings", "Utilities", "&Print Recordings", "screen PrintRecordingsMDI"},
    {"AutoRestart", "Utilities", "&Auto-Restart", "screen Autostart"},
    {"cacheman", "Utilities", "&Cacheman(c) Memory Manager", "hidden"},
    {"CustomInfo", "Utilities", "Custom &Info. Entry", "screen CustomInformation"},
    {"AudioDriver", "Utilities", "A&udio Driver Re-install", "box"},
    {"ViewErrorLog", "Utilities", "&View/Clear Error Log", "screen ErrorLog"},
    {"Mixer", "Utilities", "Windows(tm) &Mixer", "run C:\\WINDOWS\\sndvol32.exe maximised"},
    {"WindowsExplorer", "Utilities", "Windows(tm) &Explorer", "run C:\\WINDOWS\\EXPLORER.EXE"},
    {"Help", "", "&Help", "submenu"},
    {"UserManua", "Help", "&User Manual", "screen QXHelp"},
    {"About", "Help", "&About Quixair", "screen frmAbout"},
    {"RecordingDrivers", "Help", "&Prepare This P.C. for Use", "screen MMregOCX"},
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

TEST_F(ConsoleMenu, Tree_HasTheseItemsInThisOrder) {
  StartConsole();
  std::vector<MenuItem*> items;
  for (Control* control : station_.FindScreen("Console")->controls()) {
    if (auto* item = dynamic_cast<MenuItem*>(control)) items.push_back(item);
  }
  ASSERT_EQ(items.size(), std::size(kItems));
  for (std::size_t i = 0; i < items.size(); ++i) {
    const Item& expected = kItems[i];
    EXPECT_EQ(items[i]->name(), expected.name);
    EXPECT_EQ(items[i]->caption(), expected.caption);
    EXPECT_EQ(items[i]->parent() == nullptr ? "" : items[i]->parent()->name(), expected.parent)
        << expected.name;
    EXPECT_EQ(items[i]->items().empty(), std::string(expected.leads_to) != "submenu") << expected.name;
    const bool hidden = std::string(expected.leads_to) == "hidden";
    EXPECT_EQ(items[i]->visible(), !hidden) << expected.name;
    EXPECT_EQ(items[i]->enabled(), !hidden) << expected.name;
  }
}

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
    const std::string leads_to = item.leads_to;
    const bool silent = leads_to == "submenu" || leads_to == "hidden";
    EXPECT_EQ(Choose(item.name), silent ? Happened{} : Happened{leads_to});
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
  for (const char* name : {"PIKMODE.DTA", "PIKNAME.DTA", "EDITSAT.DTA"}) {
    std::filesystem::create_directories(Host("QXAIR") / name);  // a folder stands where the file should
  }
  for (const char* item : {"EditSpotPSAFile", "OnAirAssist", "ImmediatePickList", "EditTemplate",
                           "EditSatTemplate", "SatelliteControlOptions"}) {
    SCOPED_TRACE(item);
    QueueAnswer("OK");
    EXPECT_EQ(Choose(item), Happened{"box"});
    EXPECT_NE(last_box_.find("[Error 75]"), std::string::npos) << last_box_;
    EXPECT_TRUE(station_.running());
  }
  std::filesystem::remove(Host("QXAIR/PIKMODE.DTA"));
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
