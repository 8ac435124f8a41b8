#include "station/random/item_selection.h"

#include <gtest/gtest.h>

#include <set>

#include "station/platform/engine_random.h"

namespace quixair::testing {
namespace {

class Selection : public ::testing::Test {
 protected:
  Selection() {
    settings_.SongsPerLiner = 3;
    settings_.SongsPerBreak = 6;
    settings_.MaxSpotsPerBreak = 2;
    settings_.LinerEnable = 1;
    settings_.BreakType = break_type::kInternalRandom;
    settings_.BreakOpensWithLiner = 1;
    settings_.BreakClosesWithLiner = 1;
  }

  static void Fill(Pool& pool, char kind, int count, const std::string& product = {}) {
    for (int i = 1; i <= count; ++i) {
      PoolRow row;
      row.RecordingId = kind + std::to_string(1000 + i);
      row.Product = product;
      pool.Add(row);
    }
  }
  void FillPools(int songs, int liners, int spots) {
    Fill(pools_.music, 'M', songs);
    Fill(pools_.liners, 'L', liners);
    Fill(pools_.spots, 'S', spots);
  }

  /// The kinds of the next items: "MMLMMM...".
  std::string Kinds(int count) {
    std::string kinds;
    for (int i = 0; i < count; ++i) kinds += Next().front();
    return kinds;
  }
  std::string Next() {
    EXPECT_TRUE(selection_.Choose(last_id_, item_));
    last_id_ = item_.RecordingId;
    return last_id_;
  }

  RandomSettings settings_;
  RotationPools pools_;
  RotationState state_;
  EngineRandom random_{7};
  ItemSelection selection_{settings_, pools_, state_, random_};
  WorkingItem item_;
  std::string last_id_ = "M0";
};

TEST_F(Selection, TypicalSettings_GiveTheTypicalOrder) {
  FillPools(100, 5, 20);
  EXPECT_EQ(Kinds(24), "MMLMMMLMLSSLMMMLMMMLSSLM");
}

TEST_F(Selection, OneSongPerLiner_BeginsWithALiner) {
  FillPools(100, 5, 20);
  settings_.SongsPerLiner = 1;
  settings_.BreakType = break_type::kNone;
  EXPECT_EQ(Kinds(6), "LMLMLM");
}

TEST_F(Selection, LinersDisabled_ResetTheirCounterWithoutAudio) {
  FillPools(100, 5, 20);
  settings_.LinerEnable = 0;
  settings_.BreakOpensWithLiner = 0;
  settings_.BreakClosesWithLiner = 0;
  EXPECT_EQ(Kinds(16), "MMMMMMSSMMMMMMSS");
}

TEST_F(Selection, SettingLoweredBelowItsCounter_IsNotMetAgainUntilTheCounterIsReset) {
  FillPools(100, 5, 20);
  settings_.BreakType = break_type::kNone;
  settings_.SongsPerLiner = 5;
  Kinds(3);  // the counter stands at 4
  settings_.SongsPerLiner = 2;
  EXPECT_EQ(Kinds(20), std::string(20, 'M'));
}

TEST_F(Selection, LinerNeverFollowsItself) {
  FillPools(100, 3, 0);
  settings_.BreakType = break_type::kNone;
  settings_.SongsPerLiner = 1;
  std::string last;
  for (int i = 0; i < 400; ++i) {
    const std::string id = Next();
    if (id.front() != 'L') continue;
    EXPECT_NE(id, last);
    last = id;
  }
}

TEST_F(Selection, Songs_DoNotRepeatUntilTheHistoryIsCleared) {
  FillPools(30, 5, 0);
  settings_.BreakType = break_type::kNone;
  settings_.LinerEnable = 0;
  std::set<std::string> heard;
  for (int i = 0; i < 29; ++i) EXPECT_TRUE(heard.insert(Next()).second) << "song " << i;
  Next();  // every song but one has had its turn: the history begins anew
  EXPECT_EQ(state_.MusicHistory.position(), 2);
}

TEST_F(Selection, LargePool_GivesUpOnItsHistoryAfterAboutFifteenHundredComparisons) {
  FillPools(2000, 5, 0);
  settings_.BreakType = break_type::kNone;
  settings_.LinerEnable = 0;
  for (int slot = 2; slot <= 1950; ++slot) {
    state_.MusicHistory.Advance();
    state_.MusicHistory.SetSlot(slot, "M" + std::to_string(999 + slot));
  }
  int steps = 0;
  while (state_.MusicHistory.position() > 100 && steps < 200) {
    Next();
    ++steps;
  }
  EXPECT_LT(steps, 30) << "a nearly full history is emptied soon";
}

TEST_F(Selection, HistoryTableOverrun_EndsOneStepAndThenGoesOn) {
  FillPools(3000, 5, 0);
  settings_.LinerEnable = 0;
  settings_.BreakType = break_type::kNone;
  while (state_.MusicHistory.position() < RotationState::kMusicHistorySlots) state_.MusicHistory.Advance();
  EXPECT_FALSE(selection_.Choose("M0", item_));
  EXPECT_TRUE(selection_.Choose("M0", item_));
}

TEST_F(Selection, Break_LosesOnePickAndNeverRepeatsAProduct) {
  FillPools(100, 5, 0);
  Fill(pools_.spots, 'S', 10, "A");
  for (int i = 0; i < 10; ++i)
    pools_.spots.Add({.RecordingId = "S20" + std::to_string(i),
                      .Drive = {},
                      .first_text = {},
                      .Title = {},
                      .Length = {},
                      .Product = "B"});
  settings_.MaxSpotsPerBreak = 5;
  const std::string kinds = Kinds(200);
  EXPECT_EQ(kinds.find("SSS"), std::string::npos) << "two products: two spots a break at most";
  EXPECT_NE(kinds.find("SS"), std::string::npos);
}

TEST_F(Selection, OneProductForAll_PlaysOneSpotABreak) {
  FillPools(100, 5, 0);
  Fill(pools_.spots, 'S', 10, "A");
  const std::string kinds = Kinds(200);
  EXPECT_EQ(kinds.find("SS"), std::string::npos);
  EXPECT_NE(kinds.find('S'), std::string::npos);
}

TEST_F(Selection, SingleSpotRotation_PlaysItOncePerBreakWithoutClosingLiner) {
  FillPools(100, 5, 1);
  EXPECT_EQ(Kinds(18), "MMLMMMLMLSMMMLMMML");
}

TEST_F(Selection, RotationAsLongAsABreak_FindsItsHistoryFullAtTheNext) {
  FillPools(100, 5, 2);
  settings_.BreakOpensWithLiner = 0;
  settings_.BreakClosesWithLiner = 0;
  settings_.LinerEnable = 0;
  EXPECT_EQ(Kinds(20), "MMMMMMSMMMMMMSMMMMMM");
}

TEST_F(Selection, LongRotation_NeedsNoMoreSlotsThanItHas) {
  FillPools(100, 5, 2000);
  settings_.LinerEnable = 0;
  settings_.MaxSpotsPerBreak = 40;
  int spots = 0;
  for (int i = 0; i < 6000; ++i) spots += Next().front() == 'S' ? 1 : 0;
  EXPECT_GT(spots, 2000);
}

TEST_F(Selection, EveryCombination_ComesToADecision) {
  // Settings and pools that send the decision round: without an end to it the station would fall silent for
  // good.
  for (int songs : {2, 25}) {
    for (int liners : {0, 2}) {
      for (int spots : {0, 1, 2, 5}) {
        for (int bits = 0; bits < 96; ++bits) {
          pools_ = RotationPools();
          FillPools(songs, liners, spots);
          state_ = RotationState();
          settings_ = RandomSettings();
          settings_.SongsPerLiner = 1 + bits % 2;
          settings_.SongsPerBreak = 1 + bits / 2 % 2;
          settings_.MaxSpotsPerBreak = 1;
          settings_.LinerEnable = bits / 4 % 2;
          settings_.BreakOpensWithLiner = bits / 8 % 2;
          settings_.BreakClosesWithLiner = bits / 16 % 2;
          settings_.BreakType = bits / 32;
          for (int i = 0; i < 20; ++i) {
            ASSERT_TRUE(selection_.Choose(last_id_, item_)) << FormatRandomSettings(settings_);
            last_id_ = item_.RecordingId;
          }
        }
      }
    }
  }
}

TEST_F(Selection, LegalId_FallsOnceInEachWindowAroundTheHour) {
  Fill(pools_.legal_ids, 'L', 2);
  using Legal = ItemSelection::LegalId;
  struct Step {
    int minute;
    Legal expected;
  };
  const Step steps[] = {{10, Legal::kNone},  // never armed
                        {16, Legal::kNone},         {55, Legal::kNone}, {56, Legal::kBeforeTheHour},
                        {59, Legal::kNone},         {5, Legal::kNone},  {30, Legal::kNone},
                        {15, Legal::kAfterTheHour}, {15, Legal::kNone}};
  for (const Step& step : steps) {
    EXPECT_EQ(selection_.TakeLegalIdWhenDue(step.minute, item_), step.expected) << "minute " << step.minute;
  }
  state_.LegalArmed = 1;
  pools_.legal_ids.Clear();
  EXPECT_EQ(selection_.TakeLegalIdWhenDue(58, item_), Legal::kNone);
}

}  // namespace
}  // namespace quixair::testing
