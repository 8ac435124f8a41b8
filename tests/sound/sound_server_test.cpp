// The whole way to a real sound server, one of the test's own that is killed and started again.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <functional>
#include <sstream>
#include <thread>

#include "sound/sound_files.h"
#include "sound/sound_system.h"

namespace quixair::sound {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using SteadyClock = std::chrono::steady_clock;

bool IsInstalled(const std::string& program) {
  const char* const path = getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

bool Await(milliseconds patience, const std::function<bool()>& condition) {
  const auto deadline = SteadyClock::now() + patience;
  while (!condition()) {
    if (SteadyClock::now() > deadline) return false;
    std::this_thread::sleep_for(milliseconds(5));
  }
  return true;
}

// A program that is gone when this is.
class Child {
 public:
  Child(std::vector<std::string> words, const std::filesystem::path& output) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    id_ = fork();
    if (id_ != 0) return;
    const int to = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(to, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  ~Child() {
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  void Send(int signal) const { kill(id_, signal); }

 private:
  pid_t id_ = -1;
};

class OnASoundServer : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsInstalled("pulseaudio") || !IsInstalled("parec")) GTEST_SKIP() << "no sound server is installed";
    std::filesystem::create_directories(files_.Path("home"));
    setenv("HOME", files_.Path("home").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", files_.Path("").c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + Socket().string()).c_str(), 1);
    unsetenv("SDL_AUDIODRIVER");
    song_ = UniqueFrames(kMixRate * 60, 1);
    files_.Wave("song.wav", song_);
  }

  std::filesystem::path Socket() const { return files_.Path("socket"); }

  void StartServer() {
    server_.reset();
    std::filesystem::remove(Socket());
    server_ = std::make_unique<Child>(
        std::vector<std::string>{
            "pulseaudio", "-n", "--exit-idle-time=-1", "--daemonize=no", "--use-pid-file=no", "-L",
            "module-null-sink sink_name=card rate=48000 format=float32le channels=2", "-L",
            "module-native-protocol-unix auth-anonymous=1 socket=" + Socket().string()},
        files_.Path("server.log"));
    ASSERT_TRUE(Await(seconds(10), [this] { return std::filesystem::exists(Socket()); }));
  }

  static void Play(MediaPlayer& player, const std::filesystem::path& path) {
    player.Open("C:\\SONG", path);
    player.Play();
  }

  // Whether a stretch of the song arrives at the card, every sample as it is in the file.
  bool SongArrives() {
    const auto recording = files_.Path("recording.raw");
    const Child recorder({"parec", "--raw", "--format=float32le", "--rate=48000", "--channels=2",
                          "--latency-msec=20", "-d", "card.monitor"},
                         recording);
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
  std::unique_ptr<Child> server_;
};

TEST_F(OnASoundServer, SoundReturnsAfterTheServerDied) {
  StartServer();
  SoundSystem sound;
  const auto player = sound.MakePlayer(1);
  Play(*player, files_.Path("song.wav"));
  ASSERT_TRUE(SongArrives());
  EXPECT_EQ(sound.OutputTrouble(), "");

  const Pace pace(*player);
  server_.reset();
  ASSERT_TRUE(Await(seconds(3), [&] { return !sound.OutputTrouble().empty(); })) << "nobody was told";
  pace.ExpectRealTimeFor(1500);

  StartServer();
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
  StartServer();
  EXPECT_TRUE(Await(seconds(15), [&] { return sound.OutputTrouble().empty(); })) << sound.OutputTrouble();
  EXPECT_TRUE(SongArrives());
}

TEST_F(OnASoundServer, AHungServerNeitherStopsTheItemsNorTheProgram) {
  StartServer();
  auto sound = std::make_unique<SoundSystem>();
  auto player = sound->MakePlayer(1);
  Play(*player, files_.Path("song.wav"));
  ASSERT_TRUE(SongArrives());
  const Pace pace(*player);
  server_->Send(SIGSTOP);
  ASSERT_TRUE(Await(seconds(3), [&] { return !sound->OutputTrouble().empty(); }));
  pace.ExpectRealTimeFor(2000);
  server_->Send(SIGCONT);
  EXPECT_TRUE(Await(seconds(15), [&] { return sound->OutputTrouble().empty(); })) << sound->OutputTrouble();

  server_->Send(SIGSTOP);
  const auto start = SteadyClock::now();
  player.reset();
  sound.reset();
  EXPECT_LT(SteadyClock::now() - start, seconds(3));
}

}  // namespace
}  // namespace quixair::sound
