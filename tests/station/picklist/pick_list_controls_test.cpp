#include <gtest/gtest.h>

#include "station/picklist/pick_list_fixture.h"

namespace quixair::testing {
namespace {

class PickListOperator : public PickListFixture {
 protected:
  PickListOperator() { PutList({"M0001", "M0002", "M0003", "M0004"}); }
  double Elapsed() { return std::stod(Shown(kPick, "CurrLabel(3)").substr(10)); }
};

TEST_F(PickListOperator, PauseAndContinue_DoNotCountAsElapsed) {
  StartList();
  Advance(5s);
  Click(kPick, "PauseCommand");
  EXPECT_EQ(Shown(kPick, "Text1"), "M0001  AUDIO PAUSED...  Click Continue or ALT+C to Resume ");
  EXPECT_EQ(Channel(1).Mode(), ChannelMode::kPaused);
  Advance(1min);
  Click(kPick, "ContinueCommand");
  Advance(1s);
  EXPECT_NEAR(Elapsed(), 6, 0.4);
  Advance(15s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002"}));
}

TEST_F(PickListOperator, Requeue_PlaysTheItemFromItsStart) {
  StartList();
  Advance(12s);
  Click(kPick, "RequeueCommand");
  EXPECT_EQ(Channel(1).Position(), 0);
  Advance(3s);
  Click(kPick, "ContinueCommand");
  Advance(19s);
  EXPECT_NEAR(Elapsed(), 19, 0.4);
  EXPECT_EQ(aired().size(), 1U);
}

TEST_F(PickListOperator, BeginNext_CountsTheSkippedItemWithItsWholeLength) {
  StartList();
  Advance(5s);
  Click(kPick, "BeginNextCommand");
  EXPECT_EQ(EventText(), "Event #: 2 out of 4");
  EXPECT_TRUE(Find<Button>(kPick, "BeginNextCommand").enabled());
  Advance(1s);
  EXPECT_NEAR(std::stod(Shown(kPick, "TotalRemain(0)")), 59, 0.4);
}

TEST_F(PickListOperator, BeginNextWithItsPause_CuesTheItem) {
  StartList();
  Find<CheckBox>(kPick, "Check3").PersonTicks(true);
  Click(kPick, "BeginNextCommand");
  Advance(1s);
  EXPECT_EQ(Channel(1).Mode(), ChannelMode::kPaused);
  EXPECT_EQ(FileText("QXAIR/RNDPNEXT.DTA"), "1\r\n");
}

TEST_F(PickListOperator, GoLive_HoldsAfterTheItemAndContinuePlaysTheEventInTurn) {
  StartList();
  Advance(5s);
  Click(kPick, "GoLive");
  EXPECT_EQ(Shown(kPick, "GoLive"), "Cancel &Live");
  Advance(1min);
  EXPECT_EQ(Shown(kPick, "GoLive"), "LIVE NOW!");
  EXPECT_EQ(Shown(kPick, "CurrLabel(0)"), " LIVE !");
  EXPECT_EQ(Shown(kPick, "LastLabel(0)"), " M0001  Artist");
  EXPECT_EQ(aired().size(), 1U);
  Click(kPick, "ContinueCommand");
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002"}));
  EXPECT_EQ(Shown(kPick, "GoLive"), "Go &Live Next");
  Advance(21s);
  EXPECT_EQ(AiredIds().back(), "M0003");
}

TEST_F(PickListOperator, GoLiveTakenBack_ChangesNothing) {
  StartList();
  Click(kPick, "GoLive");
  Click(kPick, "GoLive");
  Advance(25s);
  EXPECT_EQ(AiredIds().back(), "M0002");
}

TEST_F(PickListOperator, BeginNextWithLiveAskedFor_GoesLiveAtOnceAndDoesNotMoveOn) {
  StartList();
  Advance(5s);
  Click(kPick, "GoLive");
  Click(kPick, "BeginNextCommand");
  EXPECT_EQ(Shown(kPick, "GoLive"), "LIVE NOW!");
  EXPECT_FALSE(Plays(1));
  Click(kPick, "BeginNextCommand");
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(EventText(), "Event #: 1 out of 4");
  Advance(25s);
  EXPECT_EQ(AiredIds().back(), "M0002") << "ticks go on after the break";
}

TEST_F(PickListOperator, EndRunQuitAndWindow_LeaveTheCleanRecord) {
  for (const char* way : {"EndRunCommand", "Command2", "window"}) {
    PutList({"M0001", "M0002"});
    OpenList();
    if (std::string_view(way) != "Command2") Click(kPick, "Start");
    if (std::string_view(way) == "window") {
      QueueAnswer("Yes");
      station_.Do([this] { station_.FindScreen(kPick)->CloseWindow(); });
    } else {
      Click(kPick, way);
    }
    EXPECT_FALSE(IsOpen(kPick)) << way;
    EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n") << way;
    EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"\"\r\n") << way;
    Advance(1min);
    station_.PowerCut();
  }
  EXPECT_EQ(FileText("QXAIR/START.TMP"), "\"\"\r\n");
}

TEST_F(PickListOperator, FirstEventChosen_IsWhereTheRunStarts) {
  OpenList();
  Select(kPick, "List1", 2);
  EXPECT_EQ(Shown(kPick, "Label1"), "Set First Event: (3 M0003 Title of)");
  Click(kPick, "Start");
  EXPECT_EQ(AiredIds(), Ids{"M0003"});
}

TEST_F(PickListOperator, Switches_AreStoredAtOnceAndShownAtTheNextLoad) {
  OpenList();
  Find<CheckBox>(kPick, "Check1").PersonTicks(true);
  Find<CheckBox>(kPick, "Check2").PersonTicks(false);
  Find<CheckBox>(kPick, "Check4").PersonTicks(true);
  Select(kPick, "List2", 6);
  Click(kPick, "Command3");
  EXPECT_EQ(FileText("QXAIR/PICKREPEAT.DTA"), "1\r\n");
  EXPECT_EQ(FileText("QXAIR/PIKVERLG.DTA"), "1\r\n");
  EXPECT_EQ(FileText("QXAIR/SPOTDRST.DTA"), "\"1\"\r\n");
  EXPECT_EQ(FileText("QXAIR/overlap.dta"), "\"6\"\r\n");
  station_.PowerCut();
  OpenList();
  EXPECT_EQ(Shown(kPick, "Check1"), "Repeat: ON");
  EXPECT_EQ(Shown(kPick, "Check2"), "Verification Log: OFF");
  EXPECT_EQ(Shown(kPick, "Check4"), "Spot Date Check: ON");
  EXPECT_EQ(Find<ListBox>(kPick, "List2").selected_text(), "6");
}

TEST_F(PickListOperator, StartTime_StartsTheRunInItsMinute) {
  OpenList();
  Click(kPick, "Command4");
  Select(kPick, "TimeList1", 7);
  Select(kPick, "TimeList2", 32);
  Select(kPick, "TimeList3", 1);
  Click(kPick, "TimeCommand1");
  EXPECT_EQ(Shown(kPick, "Label2"), "Start Time = 08:32 PM");
  Advance(119s);
  EXPECT_TRUE(aired().empty());
  Advance(2s);
  EXPECT_EQ(AiredIds(), Ids{"M0001"});
}

TEST_F(PickListOperator, StartTimePrompt_WritesItsFileAndOpensTheList) {
  StartConsole();
  station_.Do([this] { station_.platform().screens.Open("PickListForm2"); });
  Click("PickListForm2", "Command1", {"OK"});
  EXPECT_EQ(boxes().back().text, "You must highlight the hour, minute, and AM or PM");
  Select("PickListForm2", "List1", 0);
  Select("PickListForm2", "List2", 5);
  Select("PickListForm2", "List3", 0);
  Click("PickListForm2", "Command1");
  EXPECT_EQ(FileText("QXAIR/START.TMP"), "\"01:05 AM\"\r\n");
  EXPECT_TRUE(IsOpen(kPick));
}

}  // namespace
}  // namespace quixair::testing
