#include <gtest/gtest.h>

#include "station/random/random_form1.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kClean = "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n";
constexpr const char* kRunning = "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n";

class RunControlsOnAir : public StationFixture {
 protected:
  RunControlsOnAir() { AddLibrary(30, 3, 2, 10000); }

  void Press(std::string_view button) { Click("RandomForm1", button); }
  bool Visible(std::string_view control) { return Find<Control>("RandomForm1", control).visible_to_person(); }
  bool Enabled(std::string_view control) {
    return Find<Control>("RandomForm1", control).enabled_for_person();
  }
  ChannelMode Mode() { return Find<MediaControl>("RandomForm1", "MMControl1").Mode(); }
  int Position() { return Find<MediaControl>("RandomForm1", "MMControl1").Position(); }
  AirState State() {
    return dynamic_cast<RandomForm1&>(*station_.FindScreen("RandomForm1")).on_air_status().state;
  }
};

TEST_F(RunControlsOnAir, Start_ChangesTheButtonsAndWritesTheRecord) {
  StartAt("RandomPlaybackMode");
  EXPECT_TRUE(Visible("Start"));
  EXPECT_FALSE(Visible("PauseCommand"));
  EXPECT_EQ(State(), AirState::kReady);
  Press("Start");
  for (const char* shown :
       {"PauseCommand", "ContinueCommand", "BeginNextCommand", "EndRunCommand", "RequeueCommand", "GoLive"}) {
    EXPECT_TRUE(Visible(shown)) << shown;
  }
  for (const char* hidden : {"Start", "Command2", "List1", "Command4", "Command6"})
    EXPECT_FALSE(Visible(hidden)) << hidden;
  EXPECT_FALSE(Enabled("List2"));
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), kRunning);
  EXPECT_EQ(State(), AirState::kPlaying);
}

TEST_F(RunControlsOnAir, PauseAndContinue_HoldTheItemAndItsClock) {
  StartRandom();
  Advance(4s);
  Press("PauseCommand");
  EXPECT_EQ(Mode(), ChannelMode::kPaused);
  EXPECT_EQ(State(), AirState::kPaused);
  EXPECT_FALSE(Enabled("PauseCommand"));
  EXPECT_FALSE(Enabled("GoLive"));
  Advance(1h);
  EXPECT_EQ(aired().size(), 1U);
  Press("ContinueCommand");
  Advance(1s);
  EXPECT_EQ(Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(Position(), 5000);
  const std::string elapsed = Shown("RandomForm1", "CurrLabel(3)");
  EXPECT_TRUE(elapsed == " Elapsed: 4.9" || elapsed == " Elapsed: 5.0" || elapsed == " Elapsed: 4.8")
      << elapsed;
  EXPECT_TRUE(Enabled("PauseCommand"));
}

TEST_F(RunControlsOnAir, Requeue_PlaysTheItemFromItsStart) {
  StartRandom();
  Advance(6s);
  Press("RequeueCommand");
  EXPECT_EQ(Position(), 0);
  EXPECT_EQ(Mode(), ChannelMode::kPaused);
  Advance(10s);
  Press("ContinueCommand");
  Advance(500ms);
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(3)").substr(0, 12), " Elapsed: 0.");
  Advance(9s);
  EXPECT_EQ(aired().size(), 1U);
}

TEST_F(RunControlsOnAir, BeginNext_SkipsToTheNextItem) {
  StartRandom();
  Advance(2s);
  Press("BeginNextCommand");
  EXPECT_EQ(aired().size(), 2U);
  EXPECT_EQ(Mode(), ChannelMode::kPlaying);
  EXPECT_TRUE(Enabled("BeginNextCommand") && Enabled("RequeueCommand")) << "it is heard";
  AddAudio(aired().back().id, 0);
  Press("GoLive");
  Advance(11s);
  EXPECT_EQ(Shown("RandomForm1", "GoLive"), "LIVE NOW!");
  Press("BeginNextCommand");
  EXPECT_EQ(State(), AirState::kPlaying);
  EXPECT_EQ(aired().size(), 3U) << "one item, not two";
}

TEST_F(RunControlsOnAir, BeginNextWithItsPause_CuesTheItem) {
  StartRandom();
  Find<CheckBox>("RandomForm1", "Check3").PersonTicks(true);
  Press("BeginNextCommand");
  Advance(300ms);
  EXPECT_EQ(Mode(), ChannelMode::kPaused);
  Advance(1min);
  EXPECT_EQ(aired().size(), 2U);
  Press("ContinueCommand");
  Advance(11s);
  EXPECT_EQ(aired().size(), 3U);
}

TEST_F(RunControlsOnAir, GoLive_HoldsTheEngineSilentAfterTheItemUntilContinue) {
  StartRandom();
  Press("GoLive");
  EXPECT_EQ(Shown("RandomForm1", "GoLive"), "Cancel &Live");
  EXPECT_EQ(Shown("RandomForm1", "Text1"), std::string(36, ' ') + "Going Live After Current Selection Ends");
  EXPECT_EQ(Find<TextBox>("RandomForm1", "Text1").back_color(), kYellow);
  Advance(10500ms);
  EXPECT_EQ(Shown("RandomForm1", "GoLive"), "LIVE NOW!");
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(0)"), " LIVE !");
  EXPECT_EQ(State(), AirState::kLive);
  Advance(2h);
  EXPECT_EQ(aired().size(), 1U);
  Press("ContinueCommand");
  EXPECT_EQ(aired().size(), 2U);
  EXPECT_EQ(Shown("RandomForm1", "GoLive"), "Go &Live Next");
  EXPECT_EQ(Find<TextBox>("RandomForm1", "Text1").back_color(), kPaleGreen);
  EXPECT_EQ(State(), AirState::kPlaying);
}

TEST_F(RunControlsOnAir, GoLiveTakenBack_ChangesNothingOnTheAir) {
  StartRandom();
  Press("GoLive");
  Press("GoLive");
  EXPECT_EQ(Shown("RandomForm1", "Text1"), std::string(61, ' ') + "Live Cancelled!");
  Advance(11s);
  EXPECT_EQ(aired().size(), 2U);
}

TEST_F(RunControlsOnAir, PauseWhileLiveIsAskedFor_KeepsTheRequest) {
  StartRandom();
  Advance(3s);
  Press("GoLive");
  Press("PauseCommand");
  Advance(5s);
  Press("ContinueCommand");
  EXPECT_EQ(aired().size(), 1U) << "the item goes on";
  Advance(8s);
  EXPECT_EQ(Shown("RandomForm1", "GoLive"), "LIVE NOW!");
}

TEST_F(RunControlsOnAir, EndRun_ClosesTheChannelsAndTheScreenAndCleansTheRecord) {
  StartRandom();
  Press("EndRunCommand");
  EXPECT_FALSE(IsOpen("RandomForm1"));
  EXPECT_TRUE(IsOpen("Console"));
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), kClean);
  Advance(1min);
  EXPECT_EQ(aired().size(), 1U);
  Menu("RandomPlaybackMode");
  EXPECT_EQ(aired().size(), 1U) << "the next opening waits for the operator";
}

TEST_F(RunControlsOnAir, WindowClosedInMidRun_EndsTheRunAsItsButtonDoes) {
  StartRandom();
  Advance(4s);
  for (const char* answer : {"No", "Yes"}) {
    QueueAnswer(answer);
    station_.Do([this] { station_.FindScreen("RandomForm1")->CloseWindow(); });
    EXPECT_EQ(boxes().back().text, "Playback is on the air. End the run?");
    EXPECT_EQ(IsOpen("RandomForm1"), std::string_view(answer) == "No");
  }
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), kClean);
}

TEST_F(RunControlsOnAir, FaultsBesideTheRun_LeaveItOnTheAir) {
  StartRandom();
  Advance(4s);
  PutFile("QXTEMPLT/A.TPL", "\"S1\",\"no last record\"\r\n");
  station_.Do([this] { station_.platform().screens.Open("ErrorLog"); });
  Screen& beside = *station_.FindScreen("ErrorLog");
  QueueAnswer("OK");
  station_.Do([&beside] { beside.RunGuarded([] { OrEndProgram(RunTimeError::kInputPastEnd); }); });
  EXPECT_EQ(boxes().back().text, "Run-time error '62'");
  EXPECT_FALSE(IsOpen("ErrorLog"));
  EXPECT_TRUE(station_.running());
  EXPECT_EQ(State(), AirState::kPlaying);
}

TEST_F(RunControlsOnAir, StartOfTheOtherMode_AsksAndNeverSoundsBesideIt) {
  StartRandom();
  PutTemplate("A.TPP", {"M0001", "M0002"});
  PutFile("QXAIR/PIKMODE.DTA", "\"0\"\r\n");
  PutFile("QXAIR/STOREPIK.DTA", "\"A.TPP\"\r\n");
  station_.Do([this] { station_.platform().screens.Open("PickListForm1"); });
  Click("PickListForm1", "Start", {"No"});
  EXPECT_EQ(boxes().back().text, "Random Playback is on the air. End it and start this?");
  EXPECT_EQ(State(), AirState::kPlaying);
  Click("PickListForm1", "Start", {"Yes"});
  EXPECT_FALSE(IsOpen("RandomForm1"));
  EXPECT_EQ(Find<MediaControl>("PickListForm1", "MMControl1").Mode(), ChannelMode::kPlaying);
}

TEST_F(RunControlsOnAir, QuitBeforeStart_LeavesTheCleanRecord) {
  StartAt("RandomPlaybackMode");
  Press("Command2");
  EXPECT_FALSE(IsOpen("RandomForm1"));
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), kClean);
}

TEST_F(RunControlsOnAir, StartTime_StartsInItsMinuteTomorrowWhenItHasPassed) {
  StartAt("RandomPlaybackMode");
  Press("Command4");
  EXPECT_TRUE(Visible("TimeFrame2"));
  QueueAnswer("OK");
  Press("TimeCommand1");
  EXPECT_EQ(boxes().back().text, "You must highlight the hour, minute, and AM or PM");
  Select("RandomForm1", "TimeList1", 7);
  Select("RandomForm1", "TimeList2", 15);
  Select("RandomForm1", "TimeList3", 1);
  EXPECT_EQ(Shown("RandomForm1", "TimeLabel6"), "Selected = 08:15 PM");
  Press("TimeCommand1");
  EXPECT_FALSE(Visible("TimeFrame2"));
  EXPECT_EQ(Shown("RandomForm1", "Label2"), "Start Time = 08:15 PM");
  Advance(23h + 44min);
  EXPECT_EQ(aired().size(), 0U);
  Advance(1min);
  EXPECT_EQ(aired().size(), 1U);
}

TEST_F(RunControlsOnAir, StartTimeCancelled_StartsNothing) {
  StartAt("RandomPlaybackMode");
  Press("Command4");
  Select("RandomForm1", "TimeList1", 7);
  Press("TimeCommand2");
  EXPECT_EQ(Shown("RandomForm1", "Label2"), "");
  Advance(24h);
  EXPECT_EQ(aired().size(), 0U);
}

TEST_F(RunControlsOnAir, TransportBars_NeverDisturbAPlayingItem) {
  StartRandom();
  Advance(2s);
  for (const char* bar : {"MMControl1", "MMControl2", "MMControl3", "MMControl4"}) {
    Find<MediaControl>("RandomForm1", bar).ClickPlay();
    Find<MediaControl>("RandomForm1", bar).ClickPause();
    EXPECT_EQ(Mode(), ChannelMode::kPlaying) << bar;
  }
  Press("PauseCommand");
  Find<MediaControl>("RandomForm1", "MMControl1").ClickPlay();
  EXPECT_EQ(Mode(), ChannelMode::kPaused) << "Play does not lift a pause";
  Find<MediaControl>("RandomForm1", "MMControl2").ClickPause();
  EXPECT_EQ(Mode(), ChannelMode::kPlaying) << "the bars' Pause is the operator's Continue";
}

TEST_F(RunControlsOnAir, OverlapValue_IsKeptForTheNextLoad) {
  StartAt("RandomPlaybackMode");
  EXPECT_FALSE(Visible("Command6"));
  Select("RandomForm1", "List2", 4);
  EXPECT_TRUE(Visible("Command6"));
  Press("Command6");
  EXPECT_EQ(FileText("QXAIR/overlap.dta"), "\"4\"\r\n");
  EXPECT_FALSE(Enabled("Command6"));
  Press("Command2");
  Menu("RandomPlaybackMode");
  EXPECT_EQ(Find<ListBox>("RandomForm1", "List2").selected_text(), "4");
}

TEST_F(RunControlsOnAir, SettingsAndNotes_AreShownAndHidden) {
  StartAt("RandomPlaybackMode");
  Press("Command3");
  EXPECT_FALSE(Visible("List4"));
  EXPECT_FALSE(Visible("Command5"));
  EXPECT_EQ(Shown("RandomForm1", "Command3"), "Show Setti&ngs");
  Press("Command3");
  PutSettings(ParseRandomSettings("1\r\n7\r\n"));
  Press("Command5");
  EXPECT_EQ(Rows("RandomForm1", "List4")[2], "No. Songs Between Liners = 7");
  Press("Command1");
  EXPECT_TRUE(Visible("Text4"));
  EXPECT_EQ(Shown("RandomForm1", "Command1"), "Hide");
  EXPECT_FALSE(Visible("Command5"));
}

TEST_F(RunControlsOnAir, PowerCutInMidRun_ComesBackByItself) {
  PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
  StartRandom();
  Advance(5s);
  station_.PowerCut();
  ForgetAired();
  StartConsole();
  EXPECT_EQ(aired().size(), 1U);
  EXPECT_EQ(Mode(), ChannelMode::kPlaying);
}

}  // namespace
}  // namespace quixair::testing
