#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class RandomStartUp : public StationFixture {};

struct SmallLibrary {
  const char* name;
  std::vector<std::string> songs;
  std::vector<std::string> liners;
  const char* title;  // of the box that ends the program, empty when it runs
};

TEST_F(RandomStartUp, SmallLibrary_IsRefusedByItsBox) {
  const SmallLibrary libraries[] = {
      {"no song", {}, {"L1", "L2", "LL1", "LL2"}, "Not Enough Music Files"},
      {"one song", {"M1"}, {"L1", "L2", "LL1", "LL2"}, "Not Enough Music Files"},
      {"all liners legal", {"M1", "M2"}, {"LL1", "LL2", "Ll3"}, "Not Enough Regular Liner (L*.DAT) Files"},
      {"one regular liner", {"M1", "M2"}, {"L1", "LL1", "LL2"}, "Not Enough Regular Liner (L*.DAT) Files"},
      {"one legal id", {"M1", "M2"}, {"L1", "L2", "LL1"}, "Not Enough Legal I.D. (LL*.DAT) Files"},
      {"two of each", {"M1", "M2"}, {"L1", "LM2", "LL1", "LL2"}, ""},
  };
  for (const SmallLibrary& library : libraries) {
    SCOPED_TRACE(library.name);
    std::filesystem::remove_all(Host("QXDATA"));
    std::filesystem::create_directories(Host("QXDATA"));
    for (const std::string& id : library.songs) AddSong(id, 5000);
    for (const std::string& id : library.liners) AddLiner(id, 3000);
    StartConsole();
    const std::string title = library.title;
    if (!title.empty()) QueueAnswer("OK");
    Menu("RandomPlaybackMode");
    EXPECT_EQ(station_.running(), title.empty());
    if (!title.empty()) {
      EXPECT_EQ(boxes().back().title, title);
      EXPECT_EQ(boxes().back().style, 16);
      EXPECT_NE(boxes().back().text.find("will terminate"), std::string::npos);
    } else {
      EXPECT_EQ(Shown("RandomForm1", "Text1"),
                "Ready to Begin Playback.  Press START to begin, or QUIT to Exit");
    }
  }
}

TEST_F(RandomStartUp, Pools_AreListedWithTheirMarks) {
  AddSong("M1", 5000);
  AddSong("M2", 5000);
  for (const char* id : {"L1", "LM1", "ll5", "LL1", "LL2"}) AddLiner(id, 3000);
  StartAt("RandomPlaybackMode");
  std::vector<std::string> rows = Rows("RandomForm1", "List3");
  std::sort(rows.begin(), rows.end());
  // "ll5" counts as a regular liner here, and as a legal id in its own pool: only "LL" and "Ll" are taken
  // out.
  EXPECT_EQ(rows, (std::vector<std::string>{"L1  Liner L1", "LM1  Liner LM1", "M1  Title of M1",
                                            "M2  Title of M2", "^ LL1  Liner LL1", "^ LL2  Liner LL2",
                                            "^ ll5  Liner ll5", "ll5  Liner ll5"}));
}

TEST_F(RandomStartUp, TornDataFiles_ChangeNothingForTheOthers) {
  AddLibrary(3, 2, 2);
  PutFile("QXDATA/M9001.DAT", "\"12");
  PutFile("QXDATA/M9002.DAT", "");
  StartAt("RandomPlaybackMode");
  EXPECT_EQ(Rows("RandomForm1", "List3").size(), 9U);
  EXPECT_EQ(boxes().size(), 0U) << "a short file passes the load in silence";
}

TEST_F(RandomStartUp, RotationFile_IsReadToItsFirstEmptyIdOrTurnsBreaksOff) {
  AddLibrary(3, 2, 2);
  PutSettings(ParseRandomSettings("2\r\n3\r\n4\r\n2\r\n1\r\n1\r\n1\r\n0\r\n0\r\n0\r\n"));
  StartAt("RandomPlaybackMode");
  EXPECT_EQ(Rows("RandomForm1", "List5"), (std::vector<std::string>{"--Internal Random List--"}));
  Click("RandomForm1", "Command2");

  AddSpot("S1", 3000);
  PutFile("QXTEMPLT/ROTATWIN.DTA", "\"S1\",\"one\"\r\n\"S2\",\"lost\"\r\n\"\",\"\"\r\n\"S3\",\"never\"\r\n");
  Menu("RandomPlaybackMode");
  EXPECT_EQ(Rows("RandomForm1", "List5"), (std::vector<std::string>{"--Internal Random List--", "S1", "S2"}));
  EXPECT_EQ(Shown("RandomForm1", "Label8"), "Stop Sets: [Disabled]");
}

struct Switch {
  const char* file;
  const char* content;  // null: no such file
  const char* box;
  const char* caption;
  bool ticked;
};

TEST_F(RandomStartUp, Switches_AreShownAsTheirFilesSay) {
  AddLibrary(3, 2, 2);
  const Switch switches[] = {
      {"SPOTDRST.DTA", nullptr, "Check4", "Spot Date Check: ?", false},
      {"SPOTDRST.DTA", "\"1\"\r\n", "Check4", "Spot Date Check: ON", true},
      {"spotdrst.dta", "\"0\"\r\n", "Check4", "Spot Date Check: OFF", false},
      {"RNDVERLG.DTA", nullptr, "Check2", "Verification Log: ON", true},
      {"RNDVERLG.DTA", "0\r\n", "Check2", "Verification Log: ON", true},
      {"RNDVERLG.DTA", "1\r\n", "Check2", "Verification Log: OFF", false},
      {"RNDPNEXT.DTA", nullptr, "Check3", " 'Begin Next' Pause", false},
      {"RNDPNEXT.DTA", "1\r\n", "Check3", " 'Begin Next' Pause", true},
  };
  for (const Switch& one : switches) {
    SCOPED_TRACE(std::string(one.file) + " " + (one.content != nullptr ? one.content : "missing"));
    const std::string path = std::string("QXAIR/") + one.file;
    if (one.content != nullptr) PutFile(path, one.content);
    StartAt("RandomPlaybackMode");
    EXPECT_EQ(Shown("RandomForm1", one.box), one.caption);
    EXPECT_EQ(Find<CheckBox>("RandomForm1", one.box).ticked(), one.ticked);
    std::filesystem::remove(Host(path));
  }
}

TEST_F(RandomStartUp, RunningRecord_StartsByItselfBeforeTheRotationFileIsRead) {
  AddLibrary(3, 2, 2);
  AddSpot("S1", 3000);
  PutRotation({"S1"});
  PutSettings(ParseRandomSettings("2\r\n3\r\n4\r\n2\r\n0\r\n1\r\n1\r\n0\r\n0\r\n0\r\n"));
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  PutFile("QXAIR/RESET.DTA", "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n");
  StartConsole();
  ASSERT_EQ(aired().size(), 1U);
  EXPECT_EQ(aired()[0].id.front(), 'M');
  EXPECT_EQ(Rows("RandomForm1", "List6").back(), "11/22/2026  Auto-Restart Complete: 20:30:00");
  EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"),
            "\"R 11-22-26 8:30:00 p  Auto-Restart Complete: 20:30:00  11/22/2026\"\r\n");
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n");
  EXPECT_EQ(Rows("RandomForm1", "List5").size(), 2U);
}

TEST_F(RandomStartUp, SettingsChangedDuringARun_ActWithinFiveMinutesAndDoNotRestartIt) {
  AddLibrary(30, 2, 2, 100000);
  StartRandom();
  PutSettings(ParseRandomSettings("2\r\n9\r\n4\r\n2\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n"));
  Advance(301s);
  EXPECT_EQ(Rows("RandomForm1", "List4")[2], "No. Songs Between Liners = 9");
  EXPECT_EQ(Rows("RandomForm1", "List4").size(), 9U);
  EXPECT_EQ(Rows("RandomForm1", "List6").size(), 1U) << "the running record is not taken for a power cut";
  EXPECT_EQ(aired().size(), 4U);
}

TEST_F(RandomStartUp, StartTimeChooser_WritesWholeTimesOnly) {
  AddLibrary(3, 2, 2);
  StartConsole();
  station_.Do([this] { station_.platform().screens.Open("RandomForm2"); });
  Select("RandomForm2", "List1", 8);
  Click("RandomForm2", "Command1", {"OK"});
  EXPECT_EQ(boxes().back().text, "You must highlight the hour, minute, and AM or PM");
  Select("RandomForm2", "List2", 5);
  Select("RandomForm2", "List3", 1);
  EXPECT_EQ(Shown("RandomForm2", "Label2"), "Selected = 09:05 PM");
  Click("RandomForm2", "Command1");
  EXPECT_EQ(FileText("QXAIR/START.TMP"), "\"09:05 PM\"\r\n");
  EXPECT_TRUE(IsOpen("RandomForm1"));
}

}  // namespace
}  // namespace quixair::testing
