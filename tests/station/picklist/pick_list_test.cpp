#include <gtest/gtest.h>

#include <algorithm>

#include "station/picklist/pick_list_fixture.h"

namespace quixair::testing {
namespace {

class PickList : public PickListFixture {};

TEST_F(PickList, List_PlaysFromFirstToLastAndEndsAtTheConsole) {
  AddSpot("S1", 20000, "", "", "", "Baker");
  PutList({"M0001", "L0001", "S1", "LL001", "M0002"});
  StartList();
  EXPECT_EQ(EventText(), "Event #: 1 out of 5");
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"1\"\r\n\"PICKLIST\"\r\n\"A.TPP\"\r\n1\r\n");
  EXPECT_EQ(Shown(kPick, "Label7"), "A.TPP");
  Advance(45s);
  EXPECT_EQ(EventText(), "Event #: 3 out of 5");
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"1\"\r\n\"PICKLIST\"\r\n\"A.TPP\"\r\n3\r\n");
  EXPECT_EQ(Shown(kPick, "CurrLabel(0)"), " S1  Baker");
  EXPECT_EQ(Shown(kPick, "CurrLabel(1)"), " Spot S1");
  EXPECT_EQ(Shown(kPick, "CurrLabel(2)"), " Length:   20");
  EXPECT_EQ(Shown(kPick, "CurrLabel(4)"), "(C:\\QXWAVE\\S1.wav)");
  EXPECT_EQ(Shown(kPick, "LastLabel(0)"), " L0001  Liner L0001");
  EXPECT_EQ(Shown(kPick, "LastLabel(1)"), " A   Len: 20");
  EXPECT_EQ(Shown(kPick, "NextLabel1(0)"), " LL001  Liner LL001");
  EXPECT_EQ(Shown(kPick, "NextLabel1(2)"), " Len: 20(0.33)");
  EXPECT_EQ(Shown(kPick, "NextLabel2(1)"), " Title of M0002");
  EXPECT_EQ(Shown(kPick, "Text1"), std::string(50, ' ') + "Digital Audio Playback in Progress");
  EXPECT_EQ(Find<ListBox>(kPick, "List3").selected_index(), 2);
  Advance(60s);
  EXPECT_FALSE(IsOpen(kPick));
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "L0001", "S1", "LL001", "M0002"}));
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n");
  EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"\"\r\n");
  EXPECT_EQ(FileText("QXAIR/PICKLIST.DTA"), "\"\"\r\n");
  const std::string log = FileText("QXTEMPLT/Sun.LOG");
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 4) << "the liner is no proof of airing";
  EXPECT_NE(log.find("\"S1\",\"Baker\",\"P\"\r\n"), std::string::npos);
  EXPECT_NE(log.find("\"LL001\",\"*LEGAL I.D.*\",\"P\"\r\n"), std::string::npos);
}

TEST_F(PickList, Totals_CountDown) {
  PutList({"M0001", "M0002", "M0003"});
  OpenList();
  EXPECT_FALSE(Find<Frame>(kPick, "Remaining").visible());
  Click(kPick, "Start");
  EXPECT_EQ(Shown(kPick, "TotalLineup(0)"), "60 Seconds");
  EXPECT_EQ(Shown(kPick, "TotalLineup(1)"), "00h 1.m 0.s");
  Advance(15s);
  EXPECT_NEAR(std::stod(Shown(kPick, "TotalRemain(0)")), 45, 0.3);
  EXPECT_EQ(Shown(kPick, "TotalRemain(1)"), "0.8 Minutes");
  Advance(10s);
  EXPECT_NEAR(std::stod(Shown(kPick, "TotalRemain(0)")), 35, 0.4);
  QueueAnswer("OK");
  Find<Frame>(kPick, "Remaining").Click();
  EXPECT_EQ(boxes().back().title, "Time Remaining");
}

TEST_F(PickList, Repeat_BeginsAgainWithoutReadingTheFiles) {
  PutList({"M0001", "M0002"});
  SetRepeat();
  StartList();
  PutTemplate("A.TPP", {"M0003"});
  Advance(70s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002", "M0001", "M0002"}));
  EXPECT_NEAR(std::stod(Shown(kPick, "TotalRemain(0)")), 10, 1.5);
}

TEST_F(PickList, Pause_LetsTheItemOnTheAirPlayOutAndWaits) {
  PutList({"M0001", ">PAUSE<", "M0002"});
  StartList();
  Advance(10min);
  EXPECT_EQ(AiredIds(), Ids{"M0001"});
  EXPECT_EQ(Shown(kPick, "Text1"), std::string(22, ' ') + "Audio Paused... Press <Begin Next> to Resume.");
  Click(kPick, "ContinueCommand");
  Advance(1s);
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(EventText(), "Event #: 3 out of 3");
}

TEST_F(PickList, BeginNextAtAPause_MovesOn) {
  PutList({">PAUSE<", "M0002"});
  StartList();
  Advance(1s);
  Click(kPick, "BeginNextCommand");
  EXPECT_EQ(AiredIds(), Ids{"M0002"});
}

TEST_F(PickList, TimeAnnouncement_PlaysOrIsReportedAndPassedOver) {
  PutFile("QXTIME/T0830.WAV", "3000");
  PutList({">TIME<", "M0001", ">TIME<", "M0002"});
  StartList();
  EXPECT_EQ(Shown(kPick, "CurrLabel(4)"), "(C:\\QXTIME\\T0830.WAV)");
  Advance(10s);
  EXPECT_EQ(AiredIds(), (Ids{"T0830", "M0001"})) << "a list that begins with an announcement goes on";
  std::filesystem::remove(Host("QXTIME/T0830.WAV"));
  Advance(20s);
  EXPECT_EQ(LastErrorRow(), "C:\\QXTIME\\T0830.WAV = Empty!!!");
  EXPECT_EQ(AiredIds().back(), "M0002");
  EXPECT_TRUE(Plays(1));
}

TEST_F(PickList, EmptyFileInTheMiddle_IsReplacedWithinTheStepAndStandsTwiceInTheLog) {
  AddAudio("M0002", 0);
  PutList({"M0001", "M0002", "M0003", "M0004"});
  StartList();
  Advance(21s);
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(EventText(), "Event #: 3 out of 4");
  EXPECT_EQ(LastErrorRow(), "C:\\QXWAVE\\M0002.wav = Empty!!!");
  EXPECT_NE(FileText("QXAIR/QXERROR.LOG").find("P 11-22-26 8:30:20 p C:\\QXWAVE\\M0002.wav = Empty!!!"),
            std::string::npos);
  const std::string log = FileText("QXTEMPLT/Sun.LOG");
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 3)
      << "M0001, and M0003 by the inner and the outer step";
  EXPECT_EQ(log.find("M0002"), std::string::npos);
  Advance(30s);
  EXPECT_EQ(AiredIds().back(), "M0004");
}

TEST_F(PickList, NothingPlayableInARepeatedList_KeepsTheScreenAliveAndGoesOn) {
  for (const char* id : {"M0001", "M0002"}) AddAudio(id, 0);
  PutList({"M0001", "M0002"});
  SetRepeat();
  StartList();
  Advance(2min);
  const std::string log = FileText("QXAIR/QXERROR.LOG");
  EXPECT_LT(std::count(log.begin(), log.end(), '\n'), 60);
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG"), "");
  AddAudio("M0002", 20000);
  Advance(5s);
  EXPECT_TRUE(Plays(1));
}

TEST_F(PickList, LocalBreakStandsAndALostDataFileIsLeftToTheGuardWithAnOverlapToo) {
  for (const char* id : {"06:30 PM", "MGONE"}) {
    const bool stands = id[0] == '0';
    for (const int overlap : {0, 5}) {
      for (const Ids& list : {Ids{"M0001", id, "M0002"}, Ids{"M0001", "M0003", id, "M0002"}}) {
        SCOPED_TRACE(std::string(id) + " overlap " + std::to_string(overlap));
        const Ids before(list.begin(), list.end() - 2);
        SetOverlap(overlap);
        PutList(list);
        ForgetAired();
        StartList();
        Advance(20s * static_cast<int>(before.size()) - 1s * overlap * static_cast<int>(before.size() - 1) +
                2s);
        EXPECT_EQ(AiredIds(), before);
        Advance(8s);
        EXPECT_EQ(AiredIds().size(), before.size() + (stands ? 0 : 1));
        if (stands) Click(kPick, "BeginNextCommand");
        EXPECT_EQ(AiredIds().back(), "M0002");
        station_.PowerCut();
        PutFile("QXAIR/RESET.DTA", "");
      }
    }
  }
}

TEST_F(PickList, PauseInASilence_IsNoPartOfItForTheGuard) {
  PutList({"M0001", "MGONE", "M0002"});
  StartList();
  Advance(23s);
  Click(kPick, "PauseCommand");
  Advance(1min);
  Click(kPick, "ContinueCommand");
  Advance(1s);
  EXPECT_EQ(AiredIds(), Ids{"M0001"});
  Advance(5s);
  EXPECT_EQ(LastErrorRow(), "Silent for 5 seconds, went on with M0002");
}

TEST_F(PickList, RestartAfterAMenuActInTheRun_PlaysWhatTheRecordNames) {
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  PutTemplate("B.TPP", {"M0005", "M0006", "M0007"});
  for (const char* mode : {"2", "4", "0"}) {
    PutList({"M0001", "M0002", "M0003"});
    StartList();
    Advance(21s);
    HandOver(mode, "B.TPP");  // as an editor or Run Template leave it
    station_.PowerCut();
    ForgetAired();
    StartConsole();
    EXPECT_EQ(AiredIds(), Ids{"M0002"}) << mode;
    EXPECT_EQ(Shown(kPick, "Label7"), "A.TPP");
    EXPECT_EQ(FileText("QXAIR/PIKMODE.DTA"), "\"0\"\r\n");
    EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"A.TPP\"\r\n");
    Click(kPick, "EndRunCommand");
    station_.PowerCut();
  }
}

TEST_F(PickList, RemainingTime_IsTrueBehindAnEmptyFile) {
  AddAudio("M0002", 0);
  PutList({"M0001", "M0002", "M0003"});
  StartList();
  Advance(25s);  // 5 of the third
  EXPECT_EQ(Shown(kPick, "TotalRemain(0)").substr(0, 3), "15.");
}

TEST_F(PickList, LocalBreakFirstWithOverlap_IsNotTheOverlapTicksToMoveOn) {
  SetOverlap(3);
  PutList({"M0001", "06:30 PM", "M0002", "M0003"});
  OpenList();
  Select(kPick, "List1", 1);
  Click(kPick, "Start");
  Advance(5min);
  EXPECT_TRUE(aired().empty());
  EXPECT_EQ(EventText(), "Event #: 2 out of 4");
}

TEST_F(PickList, ExpiredSpots_ArePassedOverUntilTheEndlessLoopIsAborted) {
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddSpot("S1", 20000, "", "01-01-26", "11-20-26");
  PutList({"M0001", "S1", "S1", "M0002"});
  StartList();
  Advance(25s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002"}));
  EXPECT_EQ(LastErrorRow(), "S1 [Kill Date has Passed by -2 days]");
}

TEST_F(PickList, ExpiredSpots_NeverSoundHoweverManyFollowEachOther) {
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddSpot("S1", 20000, "", "01-01-26", "11-20-26");
  const char* const aborted = "Endless Loop Aborted: This EXPIRED spot will not play. Press END RUN now!";
  Ids list(160, "S1");
  list.push_back("M0001");
  PutList(list);
  StartList();
  EXPECT_EQ(Shown(kPick, "Text1"), aborted);
  EXPECT_EQ(EventText(), "Event #: 151 out of 161");
  Advance(2s);
  EXPECT_EQ(AiredIds(), Ids{"M0001"});
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG").find("\"S1\""), std::string::npos);
  station_.PowerCut();
  ForgetAired();

  SetRepeat();
  PutList({"S1", "S1", "S1"});
  StartList();
  EXPECT_EQ(Shown(kPick, "Text1"), aborted);
  const auto rows = [this] { return Rows(kPick, "List6").size(); };
  const std::size_t first_round = rows();
  Advance(29s);
  EXPECT_EQ(rows(), first_round);
  Advance(2s);
  EXPECT_EQ(rows(), first_round + 3) << "half a minute between rounds";
  EXPECT_TRUE(aired().empty());
  Click(kPick, "EndRunCommand");
  EXPECT_FALSE(IsOpen(kPick));
}

TEST_F(PickList, StartDateAhead_IsLookedAtBeforeTheKillDate) {
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddSpot("S1", 20000, "", "12-25-26", "12--");
  PutList({"S1", "M0001"});
  StartList();
  EXPECT_TRUE(station_.running());
  EXPECT_EQ(AiredIds(), Ids{"M0001"});
}

TEST_F(PickList, DateThatIsNone_EndsTheProgram) {
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddSpot("S1", 20000, "", "soon");
  PutList({"S1"});
  OpenList();
  Click(kPick, "Start", {"OK"});
  EXPECT_FALSE(station_.running());
  EXPECT_EQ(boxes().back().text,
            "Run-time error '13'\nS1: start date soon is not a date. Record / Spots / Edit Data");
  EXPECT_NE(FileText("QXAIR/QXERROR.LOG").find("S1: start date soon is not a date"), std::string::npos);
}

TEST_F(PickList, DiskFull_IsToldAndTheListGoesOn) {
  std::filesystem::create_symlink("/dev/full", Host("QXTEMPLT/Sun.LOG"));
  PutList({"M0001", "M0002"});
  OpenList();
  std::filesystem::remove(Host("QXAIR/RESET.DTA"));
  std::filesystem::create_symlink("/dev/full", Host("QXAIR/RESET.DTA"));
  Click(kPick, "Start");
  EXPECT_EQ(Shown(kPick, "Text3"), "WARNING: DRIVE C FULL - VERFICIATION LOGGING TERMINATED!");
  EXPECT_TRUE(Find<TextBox>(kPick, "Text3").visible());
  EXPECT_EQ(LastErrorRow(), "C:\\QXAIR\\RESET.DTA = Not Written, Error 61");
  Advance(25s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002"}));
}

TEST_F(PickList, DailyTemplate_GivesWayToTheNextDaysAtItsEnd) {
  PutTemplate("MON.TPT", {"M0003", "M0004"});
  PutList({"M0001", "M0002"}, "SUN.TPT");
  StartList();
  Advance(45s);
  EXPECT_EQ(Shown(kPick, "Label7"), "MON.TPT");
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002", "M0003", "M0003"})) << "started from within, and once more";
  EXPECT_EQ(EventText(), "Event #: 1 out of 2");
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"MON.TPT\"\r\n");
  Advance(20s);
  EXPECT_EQ(AiredIds().back(), "M0004");
}

TEST_F(PickList, MissingDays_ArePassedOverAndLogged) {
  PutTemplate("WED.TPT", {"M0003"});
  PutList({"M0001"}, "SUN.TPT");
  StartList();
  Advance(25s);
  EXPECT_EQ(Shown(kPick, "Label7"), "WED.TPT");
  const std::string log = FileText("QXAIR/QXERROR.LOG");
  EXPECT_NE(
      log.find(
          "\"P 11-22-26 8:30:20 pMON.TPT Not Found!\"\r\n\"P 11-22-26 8:30:20 pTUE.TPT Not Found!\"\r\n"),
      std::string::npos)
      << log;
}

TEST_F(PickList, WeekOfMissingDays_IsSearchedUntilThereIsOneOrTheOperatorEnds) {
  PutList({"M0001"}, "SUN.TPT");
  StartList();
  std::filesystem::remove(Host("QXTEMPLT/SUN.TPT"));
  Advance(1h);
  EXPECT_TRUE(IsOpen(kPick));
  const std::string log = FileText("QXAIR/QXERROR.LOG");
  EXPECT_LT(std::count(log.begin(), log.end(), '\n'), 150);
  PutTemplate("THU.TPT", {"M0005", "M0006"});
  Advance(2s);
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(Shown(kPick, "Label7"), "THU.TPT");
  std::filesystem::remove(Host("QXTEMPLT/THU.TPT"));
  Advance(1min);
  Click(kPick, "EndRunCommand");
  EXPECT_FALSE(IsOpen(kPick));
}

TEST_F(PickList, HandOverModes_PlayTheEditorsListAndAssistReturnsToTheEditor) {
  for (const char* id : {"S1", "S2"}) AddSpot(id, 20000);  // the editor asks for two of each
  for (const char* mode : {"1", "4"}) {
    ForgetAired();
    HandOver(mode, "");
    PutFile("QXAIR/PICKLIST.DTA", "\"M0001\"\r\n\"M0002\"\r\n\"\"\r\n");
    StartList();
    EXPECT_EQ(EventText(), "Event #: 1 out of 2");
    Advance(45s);
    EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002"}));
    EXPECT_FALSE(IsOpen(kPick));
    EXPECT_EQ(IsOpen("BuildTemplate1"), std::string_view(mode) == "4");
    station_.PowerCut();
  }
}

TEST_F(PickList, OneEvent_CannotOverlap) {
  SetOverlap(5);
  PutList({"M0001"});
  OpenList();
  EXPECT_EQ(Shown(kPick, "Label5"), "[Can't Overlap]");
  EXPECT_FALSE(Find<ListBox>(kPick, "List2").enabled());
  EXPECT_EQ(Find<ListBox>(kPick, "List2").selected_text(), "0");
}

TEST_F(PickList, LoadFaults_AreToldByTheirNumbers) {
  HandOver("0", "GONE.TPP");
  QueueAnswer("OK");
  OpenList();
  EXPECT_EQ(boxes().back().title, "File Doesn't Exist: GONE.TPP [Error 53]");
  EXPECT_FALSE(station_.running());
  PutList({"M0001", "M0002"});
  PutFile("QXTEMPLT/A.TPP", "\"M0001\",\"x\"\r\n\"M0002\"");
  QueueAnswer("OK");
  OpenList();
  EXPECT_EQ(boxes().back().title, "Possible Data Corruption in: A.TPP [Error 62]");
  Click(kPick, "Start");
  EXPECT_TRUE(Plays(1));
}

TEST_F(PickList, PowerCut_ComesBackAtItsEventAndTellsFaultsWithoutABox) {
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  PutList({"M0001", "M0002", "M0003", "M0004"});
  StartList();
  Advance(50s);
  ASSERT_EQ(EventText(), "Event #: 3 out of 4");
  station_.PowerCut();
  ForgetAired();
  PutFile("QXTEMPLT/A.TPP", FileText("QXTEMPLT/A.TPP").substr(0, 58));
  StartConsole();
  ASSERT_TRUE(IsOpen(kPick));
  EXPECT_EQ(AiredIds(), Ids{"M0003"});
  EXPECT_TRUE(Plays(1));
  EXPECT_NE(FileText("QXAIR/QXERROR.LOG")
                .find("\"P 11-22-26 8:30:50 p Auto-Restart Complete: 20:30:50  11/22/2026\""),
            std::string::npos);
  const std::vector<std::string> rows = Rows(kPick, "List6");
  EXPECT_NE(std::find(rows.begin(), rows.end(), "Possible Data Corruption in: A.TPP [Error 62]"), rows.end());
}

TEST_F(PickList, RecordOfAnotherMode_ChoosesNoFirstEvent) {
  for (const char* record :
       {"\"0\"\r\n\"PICKLIST\"\r\n\"A.TPP\"\r\n3\r\n", "\"1\"\r\n\"RANDOM\"\r\n\"A.TPP\"\r\n3\r\n"}) {
    PutList({"M0001", "M0002", "M0003"});
    PutFile("QXAIR/RESET.DTA", record);
    ForgetAired();
    StartList();
    EXPECT_EQ(AiredIds(), Ids{"M0001"});
    station_.PowerCut();
  }
}

}  // namespace
}  // namespace quixair::testing
