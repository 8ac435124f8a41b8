#include "station/onair/deck.h"

#include <gtest/gtest.h>

#include "station/screen/screen.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class BankScreen : public Screen {
 public:
  explicit BankScreen(const Platform& platform) : Screen(platform, "Bank", "Bank") {}
  ChannelBank Bank{*this};
};

class DeckTest : public StationFixture, public DeckObserver {
 protected:
  DeckTest() {
    AddAudio("M1", 10000);
    AddAudio("M2", 30015, ".mp3");
    PutFile("QXWAVE/BROKEN.wav", "no audio");
    station_.StartProgram();
    screen_ = std::make_unique<BankScreen>(station_.platform());
    deck_ = std::make_unique<Deck>(screen_->Bank, station_.platform().clock);
    deck_->Observe(*this);
  }
  void TearDown() override {
    deck_.reset();
    screen_.reset();
  }
  void ItemBegan(int channel, const AirItem& item) override {
    told_ += "began " + item.id + " on " + std::to_string(channel) + ';';
  }
  void ItemEnded(int channel, const AirItem& item, EndCause cause, double seconds_heard) override {
    told_ += "ended " + item.id + " on " + std::to_string(channel) + " cause " +
             std::to_string(static_cast<int>(cause)) + " heard " +
             std::to_string(seconds_heard).substr(0, 4) + ';';
  }
  static AirItem Item(const std::string& id, const std::string& extension = ".wav") {
    return {.id = id, .path = "C:\\QXWAVE\\" + id + extension, .first_text = {}, .title = {}};
  }
  ChannelBank& bank() { return screen_->Bank; }
  std::string Labels() {
    bank().UpdateLabels();
    std::string captions;
    for (const Label& label : bank().Label6) captions += label.caption() + ';';
    return captions;
  }

  std::unique_ptr<BankScreen> screen_;
  std::unique_ptr<Deck> deck_;
  std::string told_;
};

TEST_F(DeckTest, Items_BeginAndEndOnceAndObserversHearOfBoth) {
  EXPECT_TRUE(deck_->Begin(1, Item("M1")));
  Advance(4s);
  EXPECT_TRUE(deck_->Begin(2, Item("M2", ".mp3")));
  EXPECT_EQ(deck_->active, ActiveChannel::kSecond);
  EXPECT_EQ(deck_->item(1)->id, "M1");
  deck_->SweepEnded();
  EXPECT_NE(deck_->item(1), nullptr) << "still playing";
  Advance(6s);
  deck_->SweepEnded();
  EXPECT_EQ(deck_->item(1), nullptr);
  deck_->End(1, EndCause::kOperator);  // closed already
  deck_->EndAll(EndCause::kSkipped);
  EXPECT_EQ(told_,
            "began M1 on 1;began M2 on 2;ended M1 on 1 cause 0 heard 10.0;ended M2 on 2 cause 1 heard 6.00;");
}

TEST_F(DeckTest, WhatCannotBePlayed_LeavesTheChannelClosedAndNobodyIsTold) {
  for (const char* path :
       {"C:\\QXWAVE\\NONE.wav", "C:\\QXWAVE\\BROKEN.wav", "Q:\\QXWAVE\\M1.wav", "C:\\QXWAVE\\", ""}) {
    EXPECT_FALSE(deck_->Begin(1, {.id = "M9", .path = path, .first_text = {}, .title = {}})) << path;
    EXPECT_TRUE(deck_->closed(1)) << path;
  }
  EXPECT_EQ(told_, "");
}

TEST_F(DeckTest, Pause_HoldsWhatPlaysAndItsClock) {
  deck_->BeginRun();
  deck_->Begin(1, Item("M1"));
  deck_->clock().Start();
  Advance(3s);
  deck_->HoldFor(Hold::kOperator);
  EXPECT_EQ(deck_->status().state, AirState::kPaused);
  Advance(1h);
  deck_->GoOn();
  EXPECT_DOUBLE_EQ(deck_->elapsed(), 3);
  EXPECT_DOUBLE_EQ(deck_->position(1), 3);
  deck_->Rewind();
  deck_->HoldFor(Hold::kOperator);
  Advance(5s);
  deck_->GoOn();
  EXPECT_DOUBLE_EQ(deck_->elapsed(), 0);
  EXPECT_EQ(deck_->status().state, AirState::kPlaying);
  EXPECT_EQ(bank().MMControl2.Mode(), ChannelMode::kNotOpen);
}

TEST_F(DeckTest, TwoSongsBegan_LooksAtSongsAlone) {
  const struct {
    const char *first, *second;
    bool songs;
  } cases[] = {{"M1", "M1", true}, {"m1", "M1", true}, {"M1", "L1", false}, {"S1", "M1", false}};
  AddAudio("L1", 10000);
  AddAudio("S1", 10000);
  for (const auto& pair : cases) {
    deck_->Begin(1, Item(pair.first));
    Advance(500ms);
    deck_->Begin(2, Item(pair.second));
    EXPECT_EQ(deck_->TwoSongsBegan(1), pair.songs) << pair.first << ' ' << pair.second;
    Advance(500ms);
    EXPECT_FALSE(deck_->TwoSongsBegan(1)) << "no further than a second, both";
    deck_->EndAll(EndCause::kSkipped);
  }
}

TEST_F(DeckTest, Labels_TellWhatSounds) {
  EXPECT_EQ(bank().Label6[2].caption(), "Channel # 3");
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Closed;Ch-3 = Closed;Ch-4 = Closed;");
  deck_->Begin(2, Item("m2", ".mp3"));
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;");
  deck_->HoldFor(Hold::kOperator);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;")
      << "a paused one keeps its label";
  deck_->GoOn();
  Advance(30015ms);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;");
  deck_->EndAll(EndCause::kOperator);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Closed;Ch-3 = Closed;Ch-4 = Closed;");
}

TEST_F(DeckTest, TransportBars_LeadToContinueUnderTheirConditions) {
  int continued = 0;
  bool allowed = false;
  bool allowed_on_idle = false;
  bank().ConnectBars([&] { return allowed; }, [&] { return allowed_on_idle; }, [&] { ++continued; });
  const auto clicks = [&](int number, bool play) {
    const int before = continued;
    play ? bank().channel(number).ClickPlay() : bank().channel(number).ClickPause();
    return continued - before;
  };
  for (int number = 1; number <= 4; ++number) EXPECT_EQ(clicks(number, false), number <= 3 ? 1 : 0) << number;
  for (int number = 1; number <= 4; ++number) EXPECT_EQ(clicks(number, true), 0) << number;
  allowed = true;
  for (int number = 1; number <= 4; ++number) EXPECT_EQ(clicks(number, true), number <= 2 ? 1 : 0) << number;
  allowed_on_idle = true;
  EXPECT_EQ(clicks(3, true), 1);
}

}  // namespace
}  // namespace quixair::testing
