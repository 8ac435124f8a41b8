#include <gtest/gtest.h>

#include "station/onair/on_air_status.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kForm = "RandomForm1";

// The station of these tests: songs of 50 s, Sunday 20:30, stop sets by the clock.
class StopSets : public StationFixture {
 protected:
  StopSets() {
    AddLibrary(8, 2, 2, 50000);
    for (const char* id : {"S1", "S2", "S3", "S4"}) AddSpot(id, 20000);
    UseOverride(0);
  }

  void UseOverride(int seconds) {
    PutSettings({.SongsPerLiner = 50,
                 .SongsPerBreak = 50,
                 .MaxSpotsPerBreak = 2,
                 .LinerEnable = 1,
                 .BreakType = break_type::kScheduledStopSet,
                 .PauseOverrideSecs = seconds});
  }
  std::vector<std::string> AiredSpots() const {
    std::vector<std::string> spots;
    for (const std::string& id : AiredIds()) {
      if (id.front() == 'S' || id.front() == 'T') spots.push_back(id);
    }
    return spots;
  }
  StopSetStatus Plan() {
    auto* screen = dynamic_cast<OnAirScreen*>(station_.FindScreen(kForm));
    return screen->stop_set_status().value();
  }
  std::string StopSetRow(int row) { return Rows(kForm, "List7").at(static_cast<std::size_t>(row)); }
  bool WarningShows() { return Find<Label>(kForm, "Label9").visible(); }
};

using Spots = std::vector<std::string>;

TEST_F(StopSets, DueSet_PlaysInOrderWhenTheItemEndsAndTheRotationGoesOn) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S2", "S1", "M0007", "09:00 PM", "S3"});
  StartRandomWith("SUN.TPD");
  EXPECT_EQ(Shown(kForm, "Label8"), "SUN.TPD");
  Advance(30s);
  EXPECT_EQ(Shown(kForm, "Text7"), "SCANNING STOP SETS");
  EXPECT_EQ(Plan().state, StopSetState::kScanning);
  EXPECT_EQ(Plan().next_time, "08:31 PM");
  EXPECT_EQ(Plan().minutes_to_next, 1);
  Advance(31s);  // the second song is on since 20:30:50
  EXPECT_EQ(Shown(kForm, "Text7"), "08:31 PM Break Up Next");
  EXPECT_EQ(StopSetRow(1), "*08:31 PM");
  EXPECT_EQ(Plan().state, StopSetState::kDue);
  EXPECT_EQ(AiredSpots(), Spots{}) << "the item on the air is not cut off";
  Advance(45s);
  EXPECT_EQ(Plan().state, StopSetState::kPlaying);
  EXPECT_EQ(Shown(kForm, "Text7"), "STOP-SET PLAYING");
  EXPECT_EQ(Shown(kForm, "Text1"), std::string(33, ' ') + "Digital Audio Playback in Progress - [Stop Set]");
  EXPECT_EQ(Shown(kForm, "CurrLabel(0)"), " *S2  Title");
  EXPECT_EQ(Shown(kForm, "CurrLabel(1)"), " Spot S2");
  EXPECT_EQ(Shown(kForm, "CurrLabel(2)"), " Length:   20");
  EXPECT_EQ(Find<Label>(kForm, "CurrLabel(0)").fore_color(), kYellow);
  Advance(100s);
  const std::vector<std::string> ids = AiredIds();
  ASSERT_GE(ids.size(), 6U);
  EXPECT_EQ((std::vector<std::string>{ids[2], ids[3], ids[4]}),
            (std::vector<std::string>{"S2", "S1", "M0007"}));
  EXPECT_EQ(ids[5].front(), 'M');
  EXPECT_EQ(StopSetRow(4), "*M0007");
  EXPECT_EQ(Shown(kForm, "Text7"), "SCANNING STOP SETS");
  const std::string log = FileText("QXTEMPLT/Sun.LOG");
  EXPECT_EQ(log.find("\"S2\""), std::string::npos) << "stop sets do not stand in the verification log";
  EXPECT_NE(log.find("\"" + ids[5] + "\""), std::string::npos);
}

TEST_F(StopSets, TwoTimesInOneMinute_TheLaterWins) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1", "08:31 PM", "S2"});
  StartRandomWith("SUN.TPD");
  EXPECT_EQ(Plan().set_count, 2);
  Advance(5min);
  EXPECT_EQ(AiredSpots(), Spots{"S2"});
  EXPECT_EQ(StopSetRow(1), "*08:31 PM");
}

TEST_F(StopSets, SetDueDuringASet_TakesOver) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1", "S2", "S3", "S4", "08:32 PM", "S4"});
  StartRandomWith("SUN.TPD");
  Advance(5min);
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S4"})) << "S1 from 20:31:40, the second set at 20:32";
}

TEST_F(StopSets, RowsThatCannotPlay_ArePassedOver) {
  AddSpot("S9", 20000, "", "01-01-26", "11-20-26");
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddAudio("S3", 0);
  PutFile("QXTEMPLT/SUN.TPD",
          "\"08:31 PM\",\"\"\r\n\"S9\",\"\"\r\n\"\",\"\"\r\n\">LOGO\",\"\"\r\n\"SGONE\",\"\"\r\n"
          "\">TIME<\",\"\"\r\n\"S3\",\"\"\r\n\"S1\",\"x\"\r\n\"S9\",\"\"\r\n\"\",\"\"\r\n");
  StartRandomWith("SUN.TPD");
  EXPECT_EQ(StopSetRow(3), "EMPTY!!!");
  Advance(130s);
  EXPECT_EQ(AiredSpots(), (Spots{"S3", "S1"}));
  EXPECT_EQ(StopSetRow(2), "*S9");
  EXPECT_EQ(StopSetRow(5), "SGONE");
  const std::vector<std::string> rows = Rows(kForm, "List6");
  EXPECT_EQ(rows.at(1), "S9 [Kill Date has Passed by -2 days]");
  EXPECT_EQ(rows.at(2), "C:\\QXWAVE\\S3.wav = Empty!!!");
  EXPECT_EQ(rows.size(), 4U) << "and S9 once more at the end of the set, where the rotation goes on";
  EXPECT_EQ(AiredIds().back().front(), 'M');
}

TEST_F(StopSets, TimeAnnouncement_PlaysTheFileOfEitherHalfOfTheDay) {
  PutFile("QXTIME/T0831.WAV", "3000");
  PutTemplate("SUN.TPD", {"08:31 PM", ">time<", "S1"});
  StartRandomWith("SUN.TPD");
  Advance(101s);
  EXPECT_EQ(Shown(kForm, "CurrLabel(0)"), "Playing Current Time");
  EXPECT_EQ(Shown(kForm, "CurrLabel(1)"), "0831");
  EXPECT_EQ(Shown(kForm, "CurrLabel(4)"), "(C:\\QXTIME\\T0831.WAV)");
  Advance(10s);
  EXPECT_EQ(AiredSpots(), (Spots{"T0831", "S1"}));
}

TEST_F(StopSets, PauseWithoutOverride_WaitsForTheOperator) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1", ">PAUSE<", "S2"});
  StartRandomWith("SUN.TPD");
  Advance(10min);
  EXPECT_EQ(AiredSpots(), Spots{"S1"});
  EXPECT_EQ(Plan().state, StopSetState::kPaused);
  EXPECT_FALSE(Plan().override_seconds);
  EXPECT_EQ(Shown(kForm, "CurrLabel(1)"), " Audio is Paused");
  EXPECT_EQ(Shown(kForm, "CurrLabel(2)"), " Length:   [Override is OFF]");
  EXPECT_EQ(Shown(kForm, "Text1"), std::string(22, ' ') + "Audio Paused... Press <Begin Next> to Resume.");
  Click(kForm, "BeginNextCommand");
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S2"}));
}

TEST_F(StopSets, PauseOverride_GoesOnByItselfEvenAcrossMidnight) {
  UseOverride(90);
  PutTemplate("SUN.TPD", {"08:31 PM", ">PAUSE<", "S2", "11:58 PM", ">PAUSE<", "S3"});
  PutTemplate("MON.TPD", {"12:05 AM", "S4"});
  StartRandomWith("SUN.TPD");
  Advance(110s);
  EXPECT_EQ(Shown(kForm, "CurrLabel(2)"), " Length:   90");
  EXPECT_NEAR(Plan().override_seconds.value_or(0), 80, 1);
  Advance(82s);
  EXPECT_EQ(AiredSpots(), Spots{"S2"});
  ForgetAired();
  SetClock("2026-11-22 23:57:50");
  Advance(90s);
  ASSERT_EQ(Plan().state, StopSetState::kPaused);
  SetClock("2026-11-22 23:59:59");
  Advance(2s);
  EXPECT_EQ(Shown(kForm, "Label8"), "MON.TPD");
  Advance(95s);
  EXPECT_EQ(Find<MediaControl>(kForm, "MMControl1").Mode(), ChannelMode::kPlaying);
  Advance(8min);
  EXPECT_EQ(AiredSpots(), Spots{"S4"});
}

TEST_F(StopSets, DailyTemplate_ChangesAtMidnightWhileTheItemGoesOn) {
  PutTemplate("SUN.TPD", {"11:50 PM", "S1"});
  PutTemplate("MON.TPD", {"12:00 AM", "S2", "12:10 AM", "S3"});
  SetClock("2026-11-22 23:58:00");
  StartRandomWith("SUN.TPD");
  Advance(119s);
  const std::string song = Shown(kForm, "CurrLabel(0)");
  Advance(2s);
  EXPECT_EQ(Shown(kForm, "Label8"), "MON.TPD");
  EXPECT_EQ(Shown(kForm, "CurrLabel(0)"), song);
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"1\"\r\n\"RANDOM\"\r\n\"MON.TPD\"\r\n\"\"\r\n");
  EXPECT_EQ(Rows(kForm, "List7").size(), 5U);
  Advance(15min);
  EXPECT_EQ(AiredSpots(), (Spots{"S2", "S3"}));
}

TEST_F(StopSets, TemplateMissingAtMidnight_IsToldAndTheDayAfterLoads) {
  PutTemplate("sun.tpd", {"11:59 PM", "S1"});
  PutTemplate("TUE.TPD", {"12:10 AM", "S3"});
  SetClock("2026-11-22 23:58:00");
  StartRandomWith("sun.tpd");
  EXPECT_FALSE(WarningShows());
  Advance(5min);
  EXPECT_EQ(
      Shown(kForm, "Label9"),
      " NO SCHEDULED PLAYBACK WILL TAKE PLACE TODAY.  THE TEMPLATE MON.TPD WAS NOT FOUND. WAITING UNTIL "
      "MIDNIGHT TO LOAD NEXT DAY.  RANDOM PLAYBACK WILL CONTINUE");
  EXPECT_TRUE(WarningShows());
  EXPECT_EQ(Plan().state, StopSetState::kMissing);
  Advance(12h);
  EXPECT_EQ(AiredSpots(), Spots{"S1"});
  Advance(12h + 30min);
  EXPECT_FALSE(WarningShows());
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S3"}));
}

TEST_F(StopSets, TemplateOfAnotherDay_WaitsUntilMidnight) {
  PutTemplate("FRI.TPD", {"08:31 PM", "S1"});
  PutTemplate("MON.TPD", {"01:00 AM", "S2"});
  StartRandomWith("FRI.TPD");
  Advance(5min);
  EXPECT_EQ(Shown(kForm, "Text7"), "WAITING UNTIL MIDNIGHT");
  EXPECT_EQ(
      Shown(kForm, "Label9"),
      " NO SCHEDULED PLAYBACK WILL TAKE PLACE TODAY. THE CURRENT DAY DOES NOT MATCH THE TEMPLATE IN USE.  "
      "TEMPLATE IN USE = FRI, WHILE TODAY = SUN. LOADING OF THE NEXT DAY WILL BE ATTEMPTED AT MIDNIGHT!");
  EXPECT_TRUE(WarningShows());
  EXPECT_EQ(Plan().state, StopSetState::kWrongDay);
  EXPECT_EQ(AiredSpots(), Spots{});
  Advance(5h);
  EXPECT_FALSE(WarningShows());
  EXPECT_EQ(AiredSpots(), Spots{"S2"});
}

TEST_F(StopSets, CustomTemplate_StaysInUseAndPlaysEachDay) {
  PutTemplate("GALA.TPL", {"08:31 PM", "S1", "19:00 PM", "S2", "7:00 AM"});
  StartRandomWith("GALA.TPL");
  EXPECT_EQ(Rows(kForm, "List6"),
            (std::vector<std::string>{"-- error log --", "19:00 PM = Not a Time as 09:05 AM",
                                      "7:00 AM = Not a Time as 09:05 AM"}));
  Advance(26h);
  EXPECT_EQ(Shown(kForm, "Label8"), "GALA.TPL");
  EXPECT_FALSE(WarningShows());
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S1"}));
}

TEST_F(StopSets, ClockChanges_DoNotStopTheAir) {
  PutTemplate("SUN.TPD", {"08:40 PM", "S1", "09:30 PM", "S2", "10:10 PM", "S3"});
  StartRandomWith("SUN.TPD");
  Advance(15min);
  SetClock("2026-11-22 19:50:00");  // the hour comes twice
  Advance(65min);
  EXPECT_EQ(AiredSpots(), Spots{"S1"}) << "not a second time";
  SetClock("2026-11-22 22:00:00");  // an hour is skipped
  Advance(15min);
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S3"})) << "S2's time never came";
  const std::size_t before = aired().size();
  PutTemplate("MON.TPD", {"02:00 AM", "S4"});
  SetClock("2026-11-23 01:00:00");  // midnight is skipped
  Advance(90min);
  EXPECT_EQ(AiredSpots(), (Spots{"S1", "S3", "S4"}));
  EXPECT_GE(aired().size() - before, 105U) << "90 minutes of songs of 50 s";
}

TEST_F(StopSets, TimeThatPassesDuringAPause_IsPassedOver) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1", "08:40 PM", "S2"});
  StartRandomWith("SUN.TPD");
  Click(kForm, "PauseCommand");
  Advance(5min);
  Click(kForm, "ContinueCommand");
  Advance(10min);
  EXPECT_EQ(AiredSpots(), Spots{"S2"});
  EXPECT_EQ(StopSetRow(1), "08:31 PM");
}

TEST_F(StopSets, Choice_ListsBothKindsAndStoresTheOneTaken) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1"});
  PutTemplate("GALA.TPL", {"08:31 PM", "S1"});
  StartAt("RandomPlaybackMode");
  EXPECT_TRUE(Find<Frame>(kForm, "Frame2").visible());
  EXPECT_FALSE(Find<Button>(kForm, "Start").enabled());
  EXPECT_FALSE(Find<Button>(kForm, "Done").enabled());
  EXPECT_EQ(Plan().state, StopSetState::kNotChosen);
  auto& custom = Find<FileListBox>(kForm, "File1");
  auto& daily = Find<FileListBox>(kForm, "File2");
  EXPECT_EQ(custom.rows(), std::vector<std::string>{"GALA.TPL"});
  EXPECT_EQ(daily.rows(), std::vector<std::string>{"SUN.TPD"});
  custom.PersonSelects({0});
  EXPECT_TRUE(Find<Button>(kForm, "Done").enabled());
  daily.PersonSelects({0});
  EXPECT_EQ(custom.selected_index(), -1);
  PutTemplate("MON.TPD", {"08:31 PM", "S1"});
  Click(kForm, "Refresh");
  EXPECT_EQ(daily.row_count(), 2);
  custom.PersonSelects({0});
  custom.DoubleClick();
  EXPECT_FALSE(Find<Frame>(kForm, "Frame2").visible());
  EXPECT_EQ(FileText("QXAIR/RANDSAT.DTA"), "\"GALA.TPL\"\r\n\"1\"\r\n0\r\n");
  EXPECT_EQ(FileText("QXAIR/CORRCTON.DTA"), "0\r\n");
  EXPECT_TRUE(Find<Button>(kForm, "Start").enabled());
  EXPECT_TRUE(Find<Button>(kForm, "Command4").enabled());
}

TEST_F(StopSets, ChoiceDeclined_PlaysRandomMaterialOnly) {
  QueueAnswer("OK");
  StartAt("RandomPlaybackMode");
  Click(kForm, "Quit");
  EXPECT_EQ(boxes().back().title, "No File Selected");
  EXPECT_EQ(FileText("QXAIR/RANDSAT.DTA"), "\"Null\"\r\n");
  Click(kForm, "Start");
  Advance(5min);
  EXPECT_TRUE(WarningShows());
  EXPECT_GE(aired().size(), 5U);
}

TEST_F(StopSets, PowerCutInASet_ComesBackWithTheSetForgotten) {
  PutRotation({"S4"});
  PutTemplate("SUN.TPD", {"08:31 PM", "S1", "S2", "08:50 PM", "S3"});
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  StartRandomWith("SUN.TPD");
  Advance(125s);
  ASSERT_EQ(AiredSpots(), (Spots{"S1", "S2"}));
  station_.PowerCut();
  ForgetAired();
  StartConsole();
  ASSERT_TRUE(IsOpen(kForm));
  EXPECT_EQ(Find<MediaControl>(kForm, "MMControl1").Mode(), ChannelMode::kPlaying);
  EXPECT_FALSE(Find<Frame>(kForm, "Frame2").visible());
  EXPECT_EQ(StopSetRow(1), "08:31 PM");
  EXPECT_EQ(Shown(kForm, "Text1"), std::string(48, ' ') + "Digital Audio Playback in Progress");
  EXPECT_NE(FileText("QXTEMPLT/Sun.LOG").find("08:32:05 PM\",\"" + AiredIds().front() + "\""),
            std::string::npos)
      << "the first item after the cut is proved too";
  Advance(30min);
  EXPECT_EQ(AiredSpots(), Spots{"S3"});
}

TEST_F(StopSets, PowerCutAndTemplateGone_StillComesBack) {
  PutTemplate("SUN.TPD", {"08:31 PM", "S1"});
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  StartRandomWith("SUN.TPD");
  station_.PowerCut();
  std::filesystem::remove(Host("QXTEMPLT/SUN.TPD"));
  StartConsole();
  EXPECT_EQ(Find<MediaControl>(kForm, "MMControl1").Mode(), ChannelMode::kPlaying);
  EXPECT_TRUE(WarningShows());
}

}  // namespace
}  // namespace quixair::testing
