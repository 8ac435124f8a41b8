#include <gtest/gtest.h>

#include <algorithm>

#include "station/picklist/pick_list_fixture.h"

namespace quixair::testing {
namespace {

class PickListOverlapTest : public PickListFixture {
 protected:
  std::vector<int> Channels() const {
    std::vector<int> channels;
    for (const Aired& item : aired()) channels.push_back(item.channel);
    return channels;
  }
  int Second(std::size_t item) const { return std::stoi(aired().at(item).time.substr(6)); }
};

TEST_F(PickListOverlapTest, Songs_AlternateBetweenTheChannels) {
  SetOverlap(4);
  PutList({"M0001", "M0002", "M0003", "M0004", "M0005"});
  StartList();
  Advance(17s);
  EXPECT_TRUE(Plays(1));
  EXPECT_TRUE(Plays(2));
  EXPECT_EQ(EventText(), "Event #: 2 out of 5");
  EXPECT_EQ(Second(1), 16) << "exact to the overlap on the way to channel 2";
  Advance(4s);
  EXPECT_EQ(Channel(1).Mode(), ChannelMode::kNotOpen) << "swept";
  Advance(12s);
  EXPECT_EQ(Second(2), 31) << "one second earlier on the way back";
  Advance(2min);
  EXPECT_FALSE(IsOpen(kPick));
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002", "M0003", "M0004", "M0005"}));
  EXPECT_EQ(Channels(), (std::vector<int>{1, 2, 1, 2, 1}));
}

TEST_F(PickListOverlapTest, LastItemOnChannelTwo_PlaysToItsEnd) {
  SetOverlap(4);
  PutList({"M0001", "M0002"});
  StartList();
  Advance(35s + 900ms);  // M0002 began at 16 s
  EXPECT_TRUE(Plays(2));
  Advance(1s);
  EXPECT_FALSE(IsOpen(kPick));
  SetRepeat();
  PutList({"M0001", "M0002"});
  ForgetAired();
  station_.PowerCut();
  StartList();
  Advance(33s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002", "M0001"})) << "the next round overlaps as any item does";
}

TEST_F(PickListOverlapTest, Zero_LeavesChannelTwoClosed) {
  PutList({"M0001", "M0002", "M0003"});
  StartList();
  Advance(50s);
  EXPECT_EQ(Channels(), (std::vector<int>{1, 1, 1}));
}

TEST_F(PickListOverlapTest, BesideSpotsAnnouncementsPausesAndTwins_NothingOverlaps) {
  AddSpot("S1", 20000);
  PutFile("QXTIME/T0830.WAV", "3000");
  PutFile("QXTIME/T0831.WAV", "3000");
  SetOverlap(4);
  for (const Ids& list : {Ids{"M0001", "S1", "M0002"}, Ids{"S1", "M0001"}, Ids{"M0001", ">TIME<", "M0002"},
                          Ids{"M0001", "M0001", "M0002"}, Ids{"M0001", ">PAUSE<", "M0002"}}) {
    ForgetAired();
    PutList(list);
    StartList();
    Advance(19s);
    EXPECT_EQ(aired().size(), 1U) << list[1];
    Advance(3s);
    EXPECT_EQ(Channels(), std::vector<int>(aired().size(), 1)) << list[1];
    station_.PowerCut();
  }
}

TEST_F(PickListOverlapTest, SpotAfterChannelTwo_IsPlayedWhenThatHasEnded) {
  AddSpot("S1", 20000);
  SetOverlap(4);
  PutList({"M0001", "M0002", "S1", "M0003"});
  StartList();
  Advance(60s);
  EXPECT_EQ(AiredIds(), (Ids{"M0001", "M0002", "S1", "M0003"}));
  EXPECT_EQ(Channels(), (std::vector<int>{1, 2, 1, 1}));
  EXPECT_EQ(Second(2), 36);
}

TEST_F(PickListOverlapTest, EmptyFileOnChannelTwo_IsNotProvedAndTheGuardGoesOnBehindIt) {
  AddAudio("M0002", 0);
  SetOverlap(4);
  PutList({"M0001", "M0002", "M0003", "M0004"});
  StartList();
  Advance(18s);
  EXPECT_EQ(LastErrorRow(), "C:\\QXWAVE\\M0002.wav = Empty!!!");
  EXPECT_TRUE(Plays(1));
  EXPECT_FALSE(Plays(2));
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG").find("M0002"), std::string::npos) << "it made no sound";
  Advance(5s);
  EXPECT_FALSE(Plays(1));
  Advance(3s);
  EXPECT_TRUE(Plays(1));
  EXPECT_EQ(EventText(), "Event #: 3 out of 4");
  EXPECT_EQ(LastErrorRow(), "Silent for 5 seconds, went on with M0003");
}

TEST_F(PickListOverlapTest, MidnightDuringAnItem_DoesNotStopTheList) {
  SetOverlap(4);
  SetClock("2026-11-22 23:59:30");
  PutList({"M0001", "M0002", "M0003", "M0004", "M0005"});
  StartList();
  Advance(90s);
  EXPECT_EQ(AiredIds().size(), 5U);
  EXPECT_NE(FileText("QXTEMPLT/Mon.LOG"), "");
}

TEST_F(PickListOverlapTest, TwoSongsWithinTheirFirstSecond_AreKeptApart) {
  AddSong("M0008", 900);
  SetOverlap(4);
  PutList({"M0008", "M0002", "M0003"});
  StartList();
  Advance(1min);
  EXPECT_EQ(AiredIds(), (Ids{"M0008", "M0002", "M0003"}));
}

}  // namespace
}  // namespace quixair::testing
