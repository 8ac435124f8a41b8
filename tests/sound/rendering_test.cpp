// Samples exactly as they would leave for the output, rendered block by block without a device.

#include <gtest/gtest.h>
#include <sndfile.h>

#include <cmath>
#include <thread>

#include "sound/sound_files.h"
#include "sound/sound_system.h"

namespace quixair::sound {
namespace {

class Rendering : public testing::Test {
 protected:
  static SoundSystem::Options ByHand() { return {SoundSystem::Drive::kByHand, nullptr}; }

  std::unique_ptr<MediaPlayer> Opened(const std::filesystem::path& path) {
    auto player = sound_.MakePlayer(1);
    player->Open("C:\\SONG", path);
    return player;
  }

  std::vector<StereoFrame> Render(std::size_t frames) {
    std::vector<StereoFrame> rendered(frames, StereoFrame{9, 9});
    for (std::size_t at = 0; at < frames; at += kBlock) {
      sound_.RenderByHand(std::span(rendered).subspan(at, std::min(kBlock, frames - at)));
    }
    return rendered;
  }

  static std::vector<StereoFrame> Part(const std::vector<StereoFrame>& all, std::size_t from,
                                       std::size_t count) {
    std::vector<StereoFrame> part(all.begin() + static_cast<std::ptrdiff_t>(from), all.end());
    part.resize(count);  // silence behind the end
    return part;
  }

  static constexpr std::size_t kBlock = 2000;  // no divisor of the ring, so that blocks lie across its end
  SoundFiles files_;
  SoundSystem sound_{ByHand()};
};

TEST_F(Rendering, AFileOfTheOutputsRateComesOutBitByBit) {
  // Longer than the ring, so that its memory is gone round several times.
  const auto frames = UniqueFrames(400'001, 1);
  const auto player = Opened(files_.Wave("song.wav", frames));
  player->Play();
  EXPECT_EQ(Difference(Render(403'000), Part(frames, 0, 403'000)), "");
  EXPECT_EQ(sound_.underruns(), 0U);
}

TEST_F(Rendering, MonoSoundsOnBothSides) {
  std::vector<float> ramp;
  for (int step = 0; step < 480; ++step) ramp.push_back(static_cast<float>(step) / 1024);
  const auto longer = Opened(files_.Wave("mono2.wav", ramp, 48000, 1, SF_FORMAT_WAV | SF_FORMAT_FLOAT));
  longer->Play();
  const auto rendered = Render(480);
  for (std::size_t at = 0; at < ramp.size(); ++at) EXPECT_EQ(rendered[at], (StereoFrame{ramp[at], ramp[at]}));
}

TEST_F(Rendering, StreamsAreSummedAndHeldWithinFullLevel) {
  const auto a = UniqueFrames(10'000, 1);
  const auto b = UniqueFrames(8'000, 2);
  const std::vector<StereoFrame> loud(10'000, StereoFrame{0.75F, -0.75F});
  const auto player_a = Opened(files_.Wave("a.wav", a));
  const auto player_b = Opened(files_.Wave("b.wav", b));
  const auto player_loud = Opened(files_.Wave("loud.wav", loud));
  player_a->Play();
  player_b->Play();
  auto rendered = Render(5'000);
  for (std::size_t at = 0; at < rendered.size(); ++at) {
    ASSERT_EQ(rendered[at], (StereoFrame{a[at].left + b[at].left, a[at].right + b[at].right}))
        << "frame " << at;
  }
  player_loud->Play();
  rendered = Render(3'000);
  float highest = 0;
  for (std::size_t at = 0; at < rendered.size(); ++at) {
    const float sum = a[5'000 + at].left + b[5'000 + at].left + 0.75F;
    ASSERT_EQ(rendered[at].left, std::min(std::max(sum, -1.0F), 1.0F)) << "frame " << at;
    highest = std::max(highest, sum);
  }
  EXPECT_GT(highest, 1.0F) << "the case never reached full level";
}

TEST_F(Rendering, PauseHoldsTheFrameAndPlayGoesOnFromIt) {
  const auto frames = UniqueFrames(20'000, 3);
  const auto player = Opened(files_.Wave("song.wav", frames));
  player->Play();
  EXPECT_EQ(Difference(Render(5'000), Part(frames, 0, 5'000)), "");
  player->Pause();
  EXPECT_EQ(player->Mode(), ChannelMode::kPaused);
  EXPECT_EQ(Difference(Render(3'000), std::vector<StereoFrame>(3'000)), "");
  EXPECT_EQ(player->Position(), 104);
  player->Play();
  EXPECT_EQ(Difference(Render(15'000), Part(frames, 5'000, 15'000)), "");
}

TEST_F(Rendering, RewindStartsAtTheFirstFrameAndAPausedOneStaysSilentUntilPlay) {
  const auto frames = UniqueFrames(300'000, 4);
  const auto player = Opened(files_.Wave("song.wav", frames));
  player->Play();
  Render(200'000);
  player->Rewind();
  EXPECT_EQ(player->Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(player->Position(), 0);
  EXPECT_EQ(Difference(Render(150'000), Part(frames, 0, 150'000)), "");
  player->Pause();
  player->Rewind();
  EXPECT_EQ(player->Mode(), ChannelMode::kPaused);
  EXPECT_EQ(Difference(Render(1'000), std::vector<StereoFrame>(1'000)), "");
  player->Play();
  EXPECT_EQ(Difference(Render(10'000), Part(frames, 0, 10'000)), "");
}

TEST_F(Rendering, CloseAndAFailedOpenSilenceAtOnceAndTheOthersGoOn) {
  const auto frames = UniqueFrames(30'000, 6);
  const auto closing = Opened(files_.Wave("a.wav", UniqueFrames(30'000, 7)));
  const auto failing = Opened(files_.Wave("c.wav", UniqueFrames(30'000, 8)));
  const auto staying = Opened(files_.Wave("b.wav", frames));
  for (MediaPlayer* player : {closing.get(), failing.get(), staying.get()}) player->Play();
  Render(10'000);
  closing->Close();
  failing->Open("C:\\GONE", std::nullopt);
  EXPECT_EQ(failing->Mode(), ChannelMode::kNotOpen);
  EXPECT_EQ(Difference(Render(20'000), Part(frames, 10'000, 20'000)), "");
}

TEST_F(Rendering, TheLastFrameEndsTheItem) {
  const auto player = Opened(files_.Wave("song.wav", UniqueFrames(4'800, 8)));
  EXPECT_EQ(player->Length(), 100);
  player->Play();
  Render(2'400);
  EXPECT_EQ(player->Position(), 50);
  Render(2'399);
  EXPECT_EQ(player->Mode(), ChannelMode::kPlaying);
  Render(1);
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  EXPECT_EQ(player->Position(), 100);
}

TEST_F(Rendering, ConvertedFilesEndExactlyInTime) {
  struct Case {
    int rate;
    int channels;
    std::size_t frames;
  };
  for (const Case& tested : {Case{44100, 2, 44'101}, Case{22050, 2, 30'000}, Case{8000, 1, 12'345},
                             Case{96000, 2, 100'001}, Case{11025, 1, 11'025}, Case{32000, 2, 1'234}}) {
    const auto player = Opened(files_.Wave("song.wav", Sine(tested.frames, tested.rate, tested.channels),
                                           tested.rate, tested.channels, SF_FORMAT_WAV | SF_FORMAT_PCM_16));
    const auto expected =
        static_cast<std::size_t>(std::lround(static_cast<double>(tested.frames) * kMixRate / tested.rate));
    player->Play();
    Render(expected - 1);
    EXPECT_EQ(player->Mode(), ChannelMode::kPlaying) << tested.rate << " ended early";
    Render(1);
    EXPECT_EQ(player->Mode(), ChannelMode::kStopped) << tested.rate << " ended late";
    EXPECT_EQ(player->Position(), player->Length()) << tested.rate;
  }
}

TEST_F(Rendering, LevelsArePeaksSinceTheLastLook) {
  std::vector<StereoFrame> frames(9'000, StereoFrame{0.125F, -0.25F});
  frames[100] = {-0.75F, 0.5F};
  const auto player = Opened(files_.Wave("song.wav", frames));
  player->Play();
  Render(2'000);
  Render(2'000);
  Levels levels = player->TakeLevels();
  EXPECT_EQ(levels.left, 0.75F);
  EXPECT_EQ(levels.right, 0.5F);
  Render(2'000);
  levels = player->TakeLevels();
  EXPECT_EQ(levels.left, 0.125F);
  EXPECT_EQ(levels.right, 0.25F);
  player->Pause();
  Render(2'000);
  EXPECT_EQ(player->TakeLevels().left, 0.0F);
}

TEST_F(Rendering, AStarvedStreamIsSilentCountedAndGoesOn) {
  const auto frames = UniqueFrames(20'000, 9);
  Mixer mixer;
  const auto path = files_.Wave("song.wav", frames);
  Stream stream(OpenDecoder(path, ExamineFile(path)), 417);
  mixer.SetSlot(0, &stream);
  stream.Fill(1'000);
  stream.Play();
  std::vector<StereoFrame> rendered(1'500);
  mixer.Render(rendered);
  auto expected = Part(frames, 0, 1'000);
  expected.resize(1'500);
  EXPECT_EQ(rendered, expected);
  EXPECT_EQ(mixer.underruns(), 1U);
  EXPECT_EQ(stream.mode(), ChannelMode::kPlaying);
  EXPECT_EQ(stream.PositionMs(), 21);
  stream.Fill(1'500);
  mixer.Render(rendered);
  EXPECT_EQ(rendered, Part(frames, 1'000, 1'500));
  EXPECT_EQ(mixer.underruns(), 1U);
}

// What a channel of the station relies on, one line per rule.

TEST_F(Rendering, APlayerThatIsNotOpenIsHarmless) {
  const auto text = files_.Write("text.wav", "no audio in here");
  for (const auto& path : {std::optional<std::filesystem::path>(), std::optional(text),
                           std::optional(files_.Path("missing.wav")), std::optional(files_.Path(""))}) {
    const auto player = sound_.MakePlayer(2);
    player->Open("C:\\THING", path);
    player->Play();
    player->Pause();
    player->Rewind();
    EXPECT_EQ(player->Mode(), ChannelMode::kNotOpen);
    EXPECT_EQ(player->Length(), 0);
    EXPECT_EQ(player->Position(), 0);
    EXPECT_EQ(player->TakeLevels().left, 0.0F);
    player->Close();
    player->Close();
    EXPECT_EQ(Difference(Render(100), std::vector<StereoFrame>(100)), "");
  }
}

TEST_F(Rendering, ModesFollowTheCommands) {
  const auto frames = UniqueFrames(4'800, 1);
  const auto player = Opened(files_.Wave("song.wav", frames));
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  EXPECT_EQ(Difference(Render(100), std::vector<StereoFrame>(100)), "") << "sounds without Play";
  player->Pause();
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped) << "what does not play cannot pause";
  player->Rewind();
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  player->Play();
  EXPECT_EQ(player->Mode(), ChannelMode::kPlaying) << "before any frame was rendered";
  Render(5'000);
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  player->Pause();
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped) << "what ended cannot pause";
  player->Rewind();
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  EXPECT_EQ(player->Position(), 0);
  player->Play();
  EXPECT_EQ(Difference(Render(4'800), frames), "");
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
  player->Play();
  EXPECT_EQ(Difference(Render(100), std::vector<StereoFrame>(100)), "")
      << "an ended item has nothing left to play";
  EXPECT_EQ(player->Mode(), ChannelMode::kStopped);
}

TEST_F(Rendering, AFileLookedThroughBeforehand_IsKnownWhenItIsOpened) {
  EXPECT_TRUE(sound_.IsReadyToOpen(std::nullopt));
  EXPECT_TRUE(sound_.IsReadyToOpen(files_.Path("none.wav")));
  for (const auto& path :
       {files_.Wave("song.wav", UniqueFrames(48'000, 1)), files_.Write("no.mp3", "text")}) {
    EXPECT_FALSE(sound_.lengths().Knows(path));
    EXPECT_FALSE(sound_.IsReadyToOpen(path)) << "it begins only";
    while (!sound_.IsReadyToOpen(path)) std::this_thread::yield();
    EXPECT_TRUE(sound_.lengths().Knows(path));
  }
  files_.Wave("song.wav", UniqueFrames(96'000, 1));
  EXPECT_FALSE(sound_.lengths().Knows(files_.Path("song.wav"))) << "it is another file now";
}

}  // namespace
}  // namespace quixair::sound
