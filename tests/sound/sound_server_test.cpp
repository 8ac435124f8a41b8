// The whole way to a real sound server, one of the test's own that is killed and started again.

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

#include "sound/sound_files.h"
#include "sound/sound_system.h"
#include "support/outside_programs.h"

namespace quixair::sound {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using SteadyClock = std::chrono::steady_clock;

using quixair::testing::Await;
using quixair::testing::NullSoundServer;

class OnASoundServer : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!NullSoundServer::IsInstalledHere()) GTEST_SKIP() << "no sound server is installed";
    std::filesystem::create_directories(files_.Path("home"));
    setenv("HOME", files_.Path("home").c_str(), 1);
    for (const auto& [name, value] : server_.client_environment()) setenv(name.c_str(), value.c_str(), 1);
    unsetenv("SDL_AUDIODRIVER");
    song_ = UniqueFrames(kMixRate * 60, 1);
    files_.Wave("song.wav", song_);
  }

  static void Play(MediaPlayer& player, const std::filesystem::path& path) {
    player.Open("C:\\SONG", path);
    player.Play();
  }

  // Whether a stretch of the song arrives at the card, every sample as it is in the file.
  bool SongArrives() {
    const auto recording = files_.Path("recording.raw");
    const auto recorder = server_.Record(recording, "float32le", kMixRate, 2);
    std::size_t looked_at = 0;
    return Await(seconds(10), [&] { return HoldsStretchOfSong(BytesOf(recording), looked_at); });
  }

  // A loaded server may drop a buffer, so every stretch gets its chance.
  bool HoldsStretchOfSong(const std::string& bytes, std::size_t& looked_at) const {
    constexpr std::size_t kStretch = 2400;
    std::vector<StereoFrame> stretch(kStretch);
    for (; looked_at + kStretch * sizeof(StereoFrame) <= bytes.size();
         looked_at += kStretch * sizeof(StereoFrame)) {
      std::memcpy(stretch.data(), &bytes[looked_at], kStretch * sizeof(StereoFrame));
      if (stretch.front() == StereoFrame{}) continue;
      if (std::search(song_.begin(), song_.end(), stretch.begin(), stretch.end()) != song_.end()) return true;
    }
    return false;
  }

  // An item's position against the clock, from where it was made.
  class Pace {
   public:
    explicit Pace(const MediaPlayer& player) : player_(player), position_(player.Position()) {}

    void ExpectRealTimeFor(std::int32_t milliseconds_of_item) const {
      const std::int32_t reached = position_ + milliseconds_of_item;
      ASSERT_TRUE(Await(seconds(10), [&] { return player_.Position() >= reached; }));
      EXPECT_NEAR(std::chrono::duration<double>(SteadyClock::now() - start_).count(),
                  milliseconds_of_item / 1000.0, 0.15);
    }

   private:
    const MediaPlayer& player_;
    std::int32_t position_;
    SteadyClock::time_point start_ = SteadyClock::now();
  };

  SoundFiles files_;
  std::vector<StereoFrame> song_;
  NullSoundServer server_{files_.Path("")};
};

TEST_F(OnASoundServer, SoundReturnsAfterTheServerDied) {
  ASSERT_TRUE(server_.Start());
  SoundSystem sound;
  const auto player = sound.MakePlayer(1);
  Play(*player, files_.Path("song.wav"));
  ASSERT_TRUE(SongArrives());
  EXPECT_EQ(sound.OutputTrouble(), "");

  const Pace pace(*player);
  server_.Kill();
  ASSERT_TRUE(Await(seconds(3), [&] { return !sound.OutputTrouble().empty(); })) << "nobody was told";
  pace.ExpectRealTimeFor(1500);

  ASSERT_TRUE(server_.Start());
  EXPECT_TRUE(Await(seconds(15), [&] { return sound.OutputTrouble().empty(); })) << sound.OutputTrouble();
  EXPECT_TRUE(SongArrives());
  Pace(*player).ExpectRealTimeFor(1500);
  EXPECT_EQ(sound.underruns(), 0U);
}

TEST_F(OnASoundServer, SoundComesWhenTheServerStartsLate) {
  SoundSystem sound;
  const auto player = sound.MakePlayer(1);
  Play(*player, files_.Path("song.wav"));
  if (!Await(seconds(3), [&] { return !sound.OutputTrouble().empty(); }))
    GTEST_SKIP() << "there is a sound card";
  Pace(*player).ExpectRealTimeFor(1500);
  ASSERT_TRUE(server_.Start());
  EXPECT_TRUE(Await(seconds(15), [&] { return sound.OutputTrouble().empty(); })) << sound.OutputTrouble();
  EXPECT_TRUE(SongArrives());
}

TEST_F(OnASoundServer, AHungServerNeitherStopsTheItemsNorTheProgram) {
  ASSERT_TRUE(server_.Start());
  auto sound = std::make_unique<SoundSystem>();
  auto player = sound->MakePlayer(1);
  Play(*player, files_.Path("song.wav"));
  ASSERT_TRUE(SongArrives());
  const Pace pace(*player);
  server_.Send(SIGSTOP);
  ASSERT_TRUE(Await(seconds(3), [&] { return !sound->OutputTrouble().empty(); }));
  pace.ExpectRealTimeFor(2000);
  server_.Send(SIGCONT);
  EXPECT_TRUE(Await(seconds(15), [&] { return sound->OutputTrouble().empty(); })) << sound->OutputTrouble();

  server_.Send(SIGSTOP);
  const auto start = SteadyClock::now();
  player.reset();
  sound.reset();
  EXPECT_LT(SteadyClock::now() - start, seconds(3));
}

}  // namespace
}  // namespace quixair::sound
