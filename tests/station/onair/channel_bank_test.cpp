#include "station/onair/channel_bank.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class BankScreen : public Screen {
 public:
  explicit BankScreen(const Platform& platform) : Screen(platform, "Bank", "Bank") {}
  ChannelBank Bank{*this};
};

class Channels : public StationFixture {
 protected:
  Channels() {
    AddAudio("M1", 10000);
    AddAudio("M2", 30015, ".mp3");
    PutFile("QXWAVE/BROKEN.wav", "no audio");
    station_.StartProgram();
    screen_ = std::make_unique<BankScreen>(station_.platform());
  }
  void TearDown() override { screen_.reset(); }
  ChannelBank& bank() { return screen_->Bank; }
  std::string Labels() {
    bank().UpdateLabels();
    std::string captions;
    for (const Label& label : bank().Label6) captions += label.caption() + ';';
    return captions;
  }

  std::unique_ptr<BankScreen> screen_;
};

TEST_F(Channels, Labels_TellWhatSounds) {
  EXPECT_EQ(bank().Label6[2].caption(), "Channel # 3");
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Closed;Ch-3 = Closed;Ch-4 = Closed;");
  EXPECT_EQ(OpenFile(bank().MMControl2, "C:\\QXWAVE\\m2.mp3"), 30015);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Closed;Ch-3 = Closed;Ch-4 = Closed;") << "opened is not sounding";
  bank().MMControl2.Command(ChannelCommand::kPlay);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;");
  bank().PauseAll();
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;")
      << "a paused one keeps its label";
  bank().ResumeAll();
  Advance(30015ms);
  EXPECT_EQ(bank().MMControl2.Mode(), ChannelMode::kStopped);
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Open;Ch-3 = Closed;Ch-4 = Closed;");
  bank().CloseAll();
  EXPECT_EQ(Labels(), "Ch-1 = Closed;Ch-2 = Closed;Ch-3 = Closed;Ch-4 = Closed;");
}

TEST_F(Channels, PauseAndResume_TouchOnlyWhatPlaysOrIsPaused) {
  OpenFile(bank().MMControl1, "C:\\QXWAVE\\M1.wav");
  OpenFile(bank().MMControl2, "C:\\QXWAVE\\M2.mp3");
  bank().MMControl1.Command(ChannelCommand::kPlay);
  bank().PauseAll();
  EXPECT_EQ(bank().MMControl1.Mode(), ChannelMode::kPaused);
  EXPECT_EQ(bank().MMControl2.Mode(), ChannelMode::kStopped);
  bank().ResumeAll();
  EXPECT_EQ(bank().MMControl1.Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(bank().MMControl2.Mode(), ChannelMode::kStopped)
      << "opened, never started: it must not begin now";
}

TEST_F(Channels, WhatCannotBePlayed_HasLengthZero) {
  for (const char* path :
       {"C:\\QXWAVE\\NONE.wav", "C:\\QXWAVE\\BROKEN.wav", "Q:\\QXWAVE\\M1.wav", "C:\\QXWAVE\\", ""}) {
    EXPECT_EQ(OpenFile(bank().MMControl1, path), 0) << path;
    EXPECT_EQ(bank().MMControl1.Mode(), ChannelMode::kNotOpen) << path;
  }
}

TEST_F(Channels, TransportBars_LeadToContinueUnderTheirConditions) {
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
  EXPECT_EQ(clicks(4, true), 0);
}

}  // namespace
}  // namespace quixair::testing
