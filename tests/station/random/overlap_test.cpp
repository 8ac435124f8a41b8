#include <gtest/gtest.h>

#include <algorithm>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kForm = "RandomForm1";

class Overlap : public StationFixture {
 protected:
  /// Settings under which only songs play, unless a test asks for more.
  Overlap() { Use({.SongsPerLiner = 500, .SongsPerBreak = 500, .MaxSpotsPerBreak = 2, .LinerEnable = 1}); }
  void Use(const RandomSettings& settings) { PutSettings(settings); }
  void SetOverlap(int seconds) { PutFile("QXAIR/overlap.dta", "\"" + std::to_string(seconds) + "\"\r\n"); }

  MediaControl& Channel(int number) {
    return Find<MediaControl>(kForm, "MMControl" + std::to_string(number));
  }
  bool Plays(int number) { return Channel(number).Mode() == ChannelMode::kPlaying; }
  std::vector<int> Channels() const {
    std::vector<int> channels;
    for (const Aired& item : aired()) channels.push_back(item.channel);
    return channels;
  }
  int SecondsFromStart(std::size_t item) const {
    const std::string& at = aired().at(item).time;
    return std::stoi(at.substr(3, 2)) * 60 + std::stoi(at.substr(6, 2)) - 30 * 60;
  }
  std::size_t CompetingAborts() {
    const std::vector<std::string> rows = Rows(kForm, "List6");
    return static_cast<std::size_t>(std::count(rows.begin(), rows.end(), "Competing Overlap Aborted"));
  }
};

TEST_F(Overlap, Songs_OverlapInBothDirectionsAtTheSameMargin) {
  AddLibrary(12, 2, 2, 60000);
  SetOverlap(3);
  StartRandom();
  Advance(10min);
  const std::vector<int> channels = Channels();
  ASSERT_GE(channels.size(), 10U);
  for (std::size_t i = 0; i < channels.size(); ++i) EXPECT_EQ(channels[i], i % 2 == 0 ? 1 : 2) << i;
  for (std::size_t i = 1; i < 10; ++i) {
    const int start = SecondsFromStart(i) - SecondsFromStart(i - 1);
    EXPECT_GE(start, 55) << i;  // 60 s less 3 and 1, met by a tick of 1 s or of 210 ms
    EXPECT_LE(start, 58) << i;
  }
  EXPECT_EQ(CompetingAborts(), 0U);
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG").find("\r\n\r\n"), std::string::npos);
}

TEST_F(Overlap, TimeLineOfOneHandOver_LeavesOneChannelWhenTheOtherEnds) {
  AddLibrary(12, 2, 2, 60000);
  SetOverlap(5);
  StartRandom();
  Advance(55s + 500ms);
  EXPECT_TRUE(Plays(1));
  EXPECT_TRUE(Plays(2));
  const std::string second = aired().at(1).id;
  EXPECT_EQ(Shown(kForm, "CurrLabel(0)"), " " + second + "  Artist");
  EXPECT_EQ(Shown(kForm, "CurrLabel(4)"), "(C:\\QXWAVE\\" + second + ".wav)");
  Advance(5s);
  EXPECT_EQ(Channel(1).Mode(), ChannelMode::kNotOpen);
  EXPECT_TRUE(Plays(2));
  Advance(50s);
  EXPECT_TRUE(Plays(1));
  EXPECT_TRUE(Plays(2));
  EXPECT_EQ(Shown(kForm, "CurrLabel(0)"), " " + aired().at(2).id + "  Artist");
  Advance(7s);
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(Channel(2).Mode(), ChannelMode::kNotOpen);
}

TEST_F(Overlap, Zero_NeverUsesTheSecondChannel) {
  AddLibrary(12, 2, 2, 20000);
  StartRandom();
  Advance(5min);
  for (const int channel : Channels()) EXPECT_EQ(channel, 1);
}

TEST_F(Overlap, Break_PlaysItemByItemAndTheLinerBesideItOverlaps) {
  AddLibrary(12, 4, 2, 30000);
  for (const char* id : {"S1", "S2", "S3", "S4", "S5"}) AddSpot(id, 30000);
  PutRotation({"S1", "S2", "S3", "S4", "S5"});
  Use({.SongsPerLiner = 4, .SongsPerBreak = 6, .MaxSpotsPerBreak = 3, .LinerEnable = 1, .BreakType = 1});
  SetOverlap(3);
  StartRandom();
  Advance(20min);
  int spots = 0;
  bool liner_overlapped = false;
  for (std::size_t i = 1; i < aired().size(); ++i) {
    const Aired& item = aired()[i];
    const int gap = (SecondsFromStart(i) - SecondsFromStart(i - 1) + 3600) % 3600;
    if (item.id.front() == 'S') {
      ++spots;
      EXPECT_GE(gap, 30) << item.id << " at " << item.time;
    }
    if (item.id.front() == 'L' && gap < 30) liner_overlapped = true;
  }
  EXPECT_GT(spots, 4);
  EXPECT_TRUE(liner_overlapped);
}

TEST_F(Overlap, Spots_LieOverNothingWhateverTheBreakAndTheChannel) {
  AddLibrary(12, 4, 2, 30000);
  AddSpot("S0", 30000);
  for (const char* id : {"S1", "S2", "S3", "S4", "S5"}) AddSpot(id, 30000);
  for (const std::vector<std::string>& rotation :
       {std::vector<std::string>{"S1", "S2", "S3", "S4", "S5"}, std::vector<std::string>{"S1"}}) {
    for (const int type : {1, 2}) {
      for (const int most : {1, 3}) {
        PutRotation(rotation);
        Use({.SongsPerLiner = 500,
             .SongsPerBreak = 3,
             .MaxSpotsPerBreak = most,
             .LinerEnable = 1,
             .BreakType = type});
        PutTemplate("SUN.TPD", {"08:41 PM", "S0", "08:43 PM", "S0"});
        SetOverlap(5);
        ForgetAired();
        type == 2 ? StartRandomWith("SUN.TPD") : StartRandom();
        Advance(20min);
        int overlaps = 0;
        for (std::size_t i = 1; i < aired().size(); ++i) {
          const int gap = (SecondsFromStart(i) - SecondsFromStart(i - 1) + 3600) % 3600;
          const bool beside_spot = aired()[i].id[0] == 'S' || aired()[i - 1].id[0] == 'S';
          EXPECT_TRUE(gap >= 30 || !beside_spot) << aired()[i].id << " at " << aired()[i].time;
          overlaps += gap < 30 ? 1 : 0;
        }
        EXPECT_GT(overlaps, 3) << "type " << type << " most " << most;
        Click(kForm, "EndRunCommand");
        station_.PowerCut();
        SetClock("2026-11-22 20:30:00");
      }
    }
  }
}

TEST_F(Overlap, LiveRequested_HoldsTheOverlapOff) {
  AddLibrary(12, 2, 2, 30000);
  SetOverlap(5);
  StartRandom();
  Advance(5s);
  Click(kForm, "GoLive");
  Advance(40s);
  EXPECT_EQ(aired().size(), 1U);
  EXPECT_EQ(Shown(kForm, "GoLive"), "LIVE NOW!");
}

TEST_F(Overlap, StopSet_IsPlayedWithoutOverlap) {
  AddLibrary(12, 2, 2, 40000);
  for (const char* id : {"S1", "S2", "S3"}) AddSpot(id, 20000);
  Use({.SongsPerLiner = 500, .SongsPerBreak = 500, .MaxSpotsPerBreak = 2, .LinerEnable = 1, .BreakType = 2});
  PutTemplate("SUN.TPD", {"08:33 PM", "S1", "S2", "S3", "08:50 PM", "S1"});
  SetOverlap(4);
  StartRandomWith("SUN.TPD");
  Advance(10min);
  std::size_t first = 0;
  while (first < aired().size() && aired()[first].id != "S1") ++first;
  ASSERT_LT(first + 3, aired().size());
  EXPECT_GE(SecondsFromStart(first + 1) - SecondsFromStart(first), 20);
  EXPECT_GE(SecondsFromStart(first + 2) - SecondsFromStart(first + 1), 20);
  EXPECT_GE(SecondsFromStart(first + 3) - SecondsFromStart(first + 2), 20);
  for (std::size_t i = first; i < first + 4; ++i) EXPECT_EQ(aired()[i].channel, 1) << i;
  for (std::size_t i = 1; i < aired().size(); ++i) {
    EXPECT_NE(aired()[i].id, aired()[i - 1].id) << "one item on both channels at " << aired()[i].time;
  }
}

TEST_F(Overlap, ShortSongs_AreKeptApartByTheCompetingGuard) {
  AddLibrary(12, 2, 2, 8000);
  SetOverlap(9);
  StartRandom();
  Advance(3s);
  EXPECT_GE(CompetingAborts(), 1U);
  EXPECT_TRUE(Plays(1));
  EXPECT_FALSE(Plays(2));
  EXPECT_NE(FileText("QXAIR/QXERROR.LOG").find(" p Competing Overlap Aborted\"\r\n"), std::string::npos);
  Advance(2min);
  EXPECT_TRUE(Plays(1) || Plays(2));
}

TEST_F(Overlap, RefusedItemInOverlap_LeavesItsReplacementOnTheSecondChannel) {
  AddLibrary(12, 2, 2, 30000);
  for (const char* id : {"S1", "S2", "S3"}) AddSpot(id, 30000, "", "12-24-26");
  PutRotation({"S1", "S2", "S3"});
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  // Of the kind whose coming break does not hold the overlap off.
  Use({.SongsPerLiner = 50, .SongsPerBreak = 3, .MaxSpotsPerBreak = 5, .LinerEnable = 1, .BreakType = 2});
  PutTemplate("SUN.TPD", {"11:00 PM"});
  SetOverlap(3);
  StartRandomWith("SUN.TPD");
  Advance(5min);
  bool refused = false;
  for (const std::string& row : Rows(kForm, "List6")) refused |= row.find("Start Date") != std::string::npos;
  EXPECT_TRUE(refused);
  for (const Aired& item : aired()) EXPECT_EQ(item.id.front(), 'M') << item.time;
}

TEST_F(Overlap, EmptyItemInOverlap_IsReplacedOnTheSecondChannel) {
  AddLibrary(12, 2, 2, 30000);
  for (const char* id : {"M0001", "M0002", "M0003", "M0004", "M0005", "M0006"}) AddAudio(id, 0);
  SetOverlap(3);
  StartRandom();
  Advance(10min);
  int on_second = 0;
  for (const Aired& item : aired()) on_second += item.channel == 2 && item.length == 0 ? 1 : 0;
  EXPECT_GT(on_second, 0);
  int sounding = 0;
  for (const Aired& item : aired()) sounding += item.length > 0 ? 1 : 0;
  EXPECT_GE(sounding, 20) << "ten minutes of songs of 30 s without silence";
}

TEST_F(Overlap, BeginNextDuringAnOverlap_ClosesBothAndStartsOne) {
  AddLibrary(12, 2, 2, 30000);
  SetOverlap(5);
  StartRandom();
  Advance(26s);
  ASSERT_TRUE(Plays(1) && Plays(2));
  Click(kForm, "BeginNextCommand");
  EXPECT_TRUE(Plays(1));
  EXPECT_FALSE(Plays(2));
  Advance(2min);
  EXPECT_GE(aired().size(), 6U);
}

TEST_F(Overlap, RequeueDuringAnOverlap_TakesBothBackToTheirStart) {
  AddLibrary(12, 2, 2, 30000);
  SetOverlap(5);
  StartRandom();
  Advance(26s);
  Click(kForm, "RequeueCommand");
  EXPECT_EQ(Channel(1).Position(), 0);
  EXPECT_EQ(Channel(2).Position(), 0);
  Click(kForm, "ContinueCommand");
  Advance(5min);
  EXPECT_TRUE(Plays(1) || Plays(2));
}

/// In about one hand-over of ten the tick of the overlap sees the end of channel 1 before the watcher does.
class OverlapPhase : public Overlap, public ::testing::WithParamInterface<int> {};

TEST_P(OverlapPhase, LiveAskedOnTheSecondChannelWithASetDue_LeavesNoDeadAir) {
  AddLibrary(12, 2, 2, 90000 + GetParam() * 60);
  AddSpot("S1", 20000);
  Use({.SongsPerLiner = 500, .SongsPerBreak = 500, .MaxSpotsPerBreak = 2, .LinerEnable = 1, .BreakType = 2});
  PutTemplate("SUN.TPD", {"08:32 PM", "S1"});
  SetOverlap(5);
  StartRandomWith("SUN.TPD");
  Advance(105s);
  ASSERT_TRUE(Plays(2) && Channel(1).Mode() == ChannelMode::kNotOpen);
  Click(kForm, "GoLive");
  Advance(80s);
  EXPECT_EQ(Shown(kForm, "GoLive"), "LIVE NOW!");
  Click(kForm, "ContinueCommand");
  EXPECT_EQ(aired().back().id, "S1");
}

INSTANTIATE_TEST_SUITE_P(Phases, OverlapPhase, ::testing::Range(0, 17));

}  // namespace
}  // namespace quixair::testing
