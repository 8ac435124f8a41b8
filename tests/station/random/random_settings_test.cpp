#include "station/random/random_settings.h"

#include <gtest/gtest.h>

#include "station/random/random_setup.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kTen = "1\r\n2\r\n3\r\n4\r\n1\r\n0\r\n2\r\n1\r\n0\r\n999\r\n";

TEST(RandomSettingsDefaults, Zeros_DifferBetweenSetupAndPlayback) {
  RandomSettings setup;
  ApplySetupDefaults(setup);
  EXPECT_EQ(FormatRandomSettings(setup), "2\r\n4\r\n8\r\n5\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
  RandomSettings playback;
  playback.BreakOpensWithLiner = 1;
  playback.BreakClosesWithLiner = 1;
  ApplyPlaybackDefaults(playback);
  EXPECT_EQ(FormatRandomSettings(playback), "0\r\n3\r\n6\r\n5\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n")
      << "disabled liners are disabled at the ends of breaks too";
}

TEST(RandomSettingsPrintOut, BreakType_DecidesTheLastRows) {
  RandomSettings settings = ParseRandomSettings(kTen);
  const std::vector<std::string> stop_sets = {"Settings:",
                                              "----------------------------------------------------------",
                                              "No. Songs Between Liners = 2",
                                              "No. Songs Between Breaks = 3",
                                              "Max. Spots in Each Break = 4",
                                              "Start Internal Break w/ Liner: YES",
                                              "End Internal Break w/ Liner: NO",
                                              "Liner Playback Disabled: NO",
                                              "Break Playback Disabled: NO",
                                              "Satellite List Play Enabled = YES",
                                              "Pause Override Len. (Secs) 999"};
  EXPECT_EQ(SettingsPrintOut(settings), stop_sets);
  settings.BreakType = break_type::kInternalRandom;
  EXPECT_EQ(SettingsPrintOut(settings).size(), 9U);
  settings.BreakType = break_type::kNone;
  settings.LinerEnable = 0;
  const std::vector<std::string> none = SettingsPrintOut(settings);
  EXPECT_EQ(none[7], "Liner Playback Disabled: YES");
  EXPECT_EQ(none[8], "Break Playback Disabled: YES");
}

class RandomSetupScreen : public StationFixture {
 protected:
  void OpenSetup() { StartAt("SetRandomDefaults"); }
  std::string Selected(std::string_view list) { return Find<ListBox>("RandomSetup", list).selected_text(); }
  using StationFixture::Select;
  void Select(std::string_view list, std::string_view row) { Select("RandomSetup", list, row); }
};

TEST_F(RandomSetupScreen, NoFile_ShowsTheDefaultsAndSavesThem) {
  OpenSetup();
  EXPECT_EQ(Selected("List1"), "2");
  EXPECT_EQ(Selected("List3"), "8");
  EXPECT_EQ(Selected("List5"), "None");
  EXPECT_EQ(Selected("List8"), "Yes") << "a stored 0 disables liners";
  EXPECT_EQ(Shown("RandomSetup", "Label11"), "Current Value = 0 Seconds");
  Click("RandomSetup", "Command1", {"OK"});
  EXPECT_EQ(boxes().back().title, "Save Random Settings");
  EXPECT_EQ(boxes().back().style, 65);
  EXPECT_EQ(FileText("QXAIR/RANDDATA.DTA"), "2\r\n4\r\n8\r\n5\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST_F(RandomSetupScreen, Choices_ReachTheFileOnlyBySave) {
  PutFile("QXAIR/RANDDATA.DTA", kTen);
  OpenSetup();
  Select("List2", "15");
  Select("List3", "50");
  Select("List5", "Internal Random");
  Select("List8", "Yes");
  Select("List7", "Yes");
  Select("List10", "45");
  EXPECT_EQ(Shown("RandomSetup", "Label11"), "Current Value = 45 Seconds");
  Click("RandomSetup", "Command1", {"Cancel"});
  EXPECT_EQ(FileText("QXAIR/RANDDATA.DTA"), kTen);
  Click("RandomSetup", "Command1", {"OK"});
  EXPECT_EQ(FileText("QXAIR/RANDDATA.DTA"), "1\r\n15\r\n50\r\n4\r\n0\r\n0\r\n1\r\n1\r\n1\r\n45\r\n");
}

TEST_F(RandomSetupScreen, Refresh_TakesTheSavedValuesBack) {
  PutFile("QXAIR/RANDDATA.DTA", kTen);
  OpenSetup();
  Select("List2", "15");
  Click("RandomSetup", "Command2");
  EXPECT_EQ(Selected("List2"), "2");
  EXPECT_EQ(Rows("RandomSetup", "List2").size(), 15U) << "filled once, not twice";
  Click("RandomSetup", "Command3");
  EXPECT_FALSE(IsOpen("RandomSetup"));
}

TEST_F(RandomSetupScreen, ValueOutsideItsRange_SelectsNothingAndIsKept) {
  PutFile("QXAIR/RANDDATA.DTA", "99\r\n99\r\n99\r\n99\r\n1\r\n1\r\n7\r\n0\r\n0\r\n5000\r\n");
  OpenSetup();
  for (const char* list : {"List1", "List2", "List3", "List4", "List5", "List10"})
    EXPECT_EQ(Selected(list), "") << list;
  Click("RandomSetup", "Command1", {"OK"});
  EXPECT_EQ(FileText("QXAIR/RANDDATA.DTA"), "99\r\n99\r\n99\r\n99\r\n1\r\n1\r\n7\r\n0\r\n0\r\n5000\r\n");
}

TEST_F(RandomSetupScreen, FileThatCannotBeWritten_IsToldInTheStatus) {
  OpenSetup();
  std::filesystem::remove_all(Host("QXAIR"));
  Click("RandomSetup", "Command1", {"OK"});
  EXPECT_NE(Shown("RandomSetup", "Text1").find("NOT"), std::string::npos);
}

}  // namespace
}  // namespace quixair::testing
