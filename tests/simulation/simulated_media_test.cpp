#include "simulation/simulated_media.h"

#include <gtest/gtest.h>

#include "script/script_language.h"

namespace quixair::testing {
namespace {

using namespace std::chrono_literals;
using simulation::ChannelEvent;

class SimulatedMediaTest : public ::testing::Test {
 protected:
  SimulatedMediaTest() {
    media_.on_event = [this](const ChannelEvent& event) {
      const char* names[] = {"open", "play", "pause", "prev", "close", "end"};
      said_ += std::to_string(event.channel) + names[static_cast<int>(event.act)];
      if (event.act == ChannelEvent::Act::kOpen)
        said_ += ' ' + event.file + ' ' + std::to_string(event.length);
      said_ += ';';
    };
  }
  void OpenSong() { player_->Open("C:\\SONG.WAV", "/song"); }
  std::string Heard() { return std::exchange(said_, {}); }

  simulation::VirtualTime time_{script::MomentOf("2026-11-22 20:00:00")};
  simulation::SimulatedMedia media_{
      time_, [](const std::filesystem::path& path) { return path == "/song" ? 30015 : 0; }};
  std::string said_;
  std::unique_ptr<MediaPlayer> player_ = media_.MakePlayer(1);
};

TEST_F(SimulatedMediaTest, Item_EndsAtTheVeryMillisecond) {
  EXPECT_EQ(player_->Mode(), ChannelMode::kNotOpen);
  OpenSong();
  EXPECT_EQ(player_->Mode(), ChannelMode::kStopped);
  EXPECT_EQ(player_->Length(), 30015);
  player_->Play();
  time_.Advance(30014ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(player_->Position(), 30014);
  time_.Advance(1ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kStopped);
  EXPECT_EQ(player_->Position(), 30015);
  time_.Advance(1min);
  EXPECT_EQ(Heard(), "1open C:\\SONG.WAV 30015;1play;1end;");
}

TEST_F(SimulatedMediaTest, PauseAndResume_TakeUpWhereItStood) {
  OpenSong();
  player_->Play();
  time_.Advance(10s);
  player_->Pause();
  time_.Advance(1h);
  EXPECT_EQ(player_->Mode(), ChannelMode::kPaused);
  EXPECT_EQ(player_->Position(), 10000);
  player_->Play();
  time_.Advance(20014ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kPlaying);
  time_.Advance(1ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kStopped);
}

TEST_F(SimulatedMediaTest, Rewind_KeepsAPlayingOnePlayingAndAPausedOnePaused) {
  OpenSong();
  player_->Play();
  time_.Advance(10s);
  player_->Rewind();
  EXPECT_EQ(player_->Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(player_->Position(), 0);
  time_.Advance(20s);
  player_->Pause();
  player_->Rewind();
  EXPECT_EQ(player_->Mode(), ChannelMode::kPaused);
  EXPECT_EQ(player_->Position(), 0);
  player_->Play();
  time_.Advance(30014ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kPlaying) << "the end of the first start must not cut it";
  time_.Advance(1ms);
  EXPECT_EQ(player_->Mode(), ChannelMode::kStopped);
}

TEST_F(SimulatedMediaTest, CommandsWithoutEffect_SayNothing) {
  player_->Play();
  player_->Pause();
  player_->Rewind();
  player_->Close();
  EXPECT_EQ(Heard(), "");
  OpenSong();
  player_->Pause();
  EXPECT_EQ(player_->Mode(), ChannelMode::kStopped);
  player_->Play();
  player_->Play();
  player_->Close();
  player_->Close();
  time_.Advance(1min);
  EXPECT_EQ(Heard(), "1open C:\\SONG.WAV 30015;1play;1close;");
  EXPECT_EQ(player_->Mode(), ChannelMode::kNotOpen);
}

TEST_F(SimulatedMediaTest, WhatCannotBeOpened_LeavesThePlayerNotOpen) {
  OpenSong();
  player_->Play();
  player_->Open("C:\\NONE.WAV", std::nullopt);
  EXPECT_EQ(player_->Mode(), ChannelMode::kNotOpen);
  EXPECT_EQ(player_->Length(), 0);
  player_->Open("C:\\BROKEN.WAV", "/broken");
  EXPECT_EQ(player_->Mode(), ChannelMode::kNotOpen);
  time_.Advance(1min);
  EXPECT_EQ(Heard(), "1open C:\\SONG.WAV 30015;1play;1open C:\\NONE.WAV 0;1open C:\\BROKEN.WAV 0;");
}

TEST_F(SimulatedMediaTest, Channels_PlayBesideEachOther) {
  const auto other = media_.MakePlayer(2);
  OpenSong();
  player_->Play();
  time_.Advance(1s);
  other->Open("C:\\SONG.WAV", "/song");
  other->Play();
  Heard();
  time_.Advance(1min);
  EXPECT_EQ(Heard(), "1end;2end;");
}

}  // namespace
}  // namespace quixair::testing
