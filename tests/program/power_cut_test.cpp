// The on-air program itself on a display and a sound card of the test's own: killed without a word at many
// moments, alone or with its supervisor, and back on the air by itself each time with every file whole.

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <regex>
#include <thread>

#include "station/host/system_clock.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "support/outside_programs.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;
using SteadyClock = std::chrono::steady_clock;

constexpr int kSongs = 1900;
constexpr int kRate = 22050;
constexpr int kRecordingRate = 8000;

/// Two and a half seconds of a square wave as a WAV file.
std::string Tone() {
  constexpr std::uint32_t kBytes = kRate * 5;
  const auto number = [](std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 255);
    return text;
  };
  std::string wave = "RIFF" + number(kBytes + 36, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) +
                     number(1, 2) + number(kRate, 4) + number(kRate * 2, 4) + number(2, 2) + number(16, 2) +
                     "data" + number(kBytes, 4);
  for (std::uint32_t i = 0; i < kBytes / 2; ++i) wave += number(i / 25 % 2 == 0 ? 6000 : 65536 - 6000, 2);
  return wave;
}

class PowerCut : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!NullSoundServer::IsInstalledHere() || !IsInstalled("Xvfb"))
      GTEST_SKIP() << "no sound server or display";
    fs::permissions(folder_.path(), fs::perms::owner_all);
    fs::create_directories(folder_.path() / "home");
    ASSERT_TRUE(server_.Start());
    StartDisplay();
    MakeStation();
    recorder_ = server_.Record(Recording(), "s16le", kRecordingRate, 1);
    ASSERT_TRUE(Await(seconds(10), [this] { return RecordedBytes() > 0; }));
  }

  fs::path Recording() const { return folder_.path() / "recording.raw"; }
  std::size_t RecordedBytes() const {
    std::error_code none;
    const auto size = fs::file_size(Recording(), none);
    return none ? 0 : static_cast<std::size_t>(size);
  }
  fs::path Host(const std::string& path) const { return folder_.path() / "C" / path; }

  void StartDisplay() {
    const fs::path number = folder_.path() / "display";
    display_ = std::make_unique<Child>(std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0",
                                                                "1280x800x24", "-nolisten", "tcp"},
                                       number);
    ASSERT_TRUE(Await(seconds(10), [&] { return ReadHostFile(number).ends_with('\n'); }));
    display_name_ = ":" + ReadHostFile(number);
    display_name_.pop_back();
  }

  void MakeStation() {
    WriteHostFile(folder_.path() / "config/quixair/drives.conf", "C = " + Host("").string() + "\n");
    WriteHostFile(Host("QXWAVE/TONE"), Tone());
    for (int i = 1; i <= kSongs; ++i) AddSong(i);
    for (int i = 1; i <= 60; ++i) AddLiner("L" + std::to_string(1000 + i));
    for (int i = 1; i <= 40; ++i) AddLiner("LL" + std::to_string(100 + i));
    const std::string day = UpperCased(DayName(SystemClock().Now()));
    const std::map<std::string, std::string> files = {
        {"REGOCX.DTA", "1\r\n"},
        {"RESETON.DTA", "\"1\"\r\n"},
        {"RANDDATA.DTA", "2\r\n3\r\n50\r\n2\r\n1\r\n1\r\n2\r\n0\r\n0\r\n0\r\n"},
        {"overlap.dta", "\"1\"\r\n"},
        {"RANDSAT.DTA", "\"" + day + ".TPD\"\r\n\"1\"\r\n0\r\n"},
        {"RESET.DTA", "\"1\"\r\n\"RANDOM\"\r\n\"" + day + ".TPD\"\r\n\"\"\r\n"}};
    for (const auto& [name, text] : files) WriteHostFile(Host("QXAIR/" + name), text);
    fs::create_directories(Host("QXTIME"));
    WriteHostFile(Host("QXTEMPLT/" + day + ".TPD"), "\"\",\"\"\r\n");
  }

  void AddSong(int number) {
    const std::string id = "M" + std::to_string(10000 + number);
    PutRecording(id, Lines({"2.5", id, "C", "Artist", "Title", "A", "01-01-26", "2026"}));
  }
  void AddLiner(const std::string& id) {
    PutRecording(id, Lines({"2.5", id, "C", "Liner", "A", "G", "01-01-26", ""}));
  }
  void PutRecording(const std::string& id, const std::string& record) {
    WriteHostFile(Host("QXDATA/" + id + ".DAT"), record);
    fs::create_hard_link(Host("QXWAVE/TONE"), Host("QXWAVE/" + id + ".wav"));
    data_files_[id] = record;
  }

  std::unique_ptr<Child> StartProgram(Child::Environment more = {}) {
    Child::Environment environment = server_.client_environment();
    environment.insert(environment.end(), {{"HOME", (folder_.path() / "home").string()},
                                           {"XDG_CONFIG_HOME", (folder_.path() / "config").string()},
                                           {"DISPLAY", display_name_},
                                           {"QT_QPA_PLATFORM", "xcb"},
                                           {"SDL_AUDIODRIVER", "pulseaudio"}});
    environment.insert(environment.end(), more.begin(), more.end());
    return std::make_unique<Child>(std::vector<std::string>{std::string(QUIXAIR_BINARY_DIR) + "/quixair"},
                                   folder_.path() / "program.log", environment);
  }

  /// The process that plays, below its supervisor.
  static pid_t LifeOf(const Child& program) {
    const std::string id = std::to_string(program.id());
    return static_cast<pid_t>(std::atoi(ReadHostFile("/proc/" + id + "/task/" + id + "/children").c_str()));
  }

  /// Milliseconds from now until the recording, having fallen silent, sounds again; none within ten seconds.
  std::optional<double> AwaitSound() const {
    const auto start = SteadyClock::now();
    std::size_t looked_at = RecordedBytes() / 2 * 2;
    int silent_samples = 0;
    bool sounds = false;
    Await(seconds(10), [&] {
      const std::string bytes = ReadFrom(looked_at);
      for (std::size_t i = 0; i + 1 < bytes.size() && !sounds; i += 2) {
        std::int16_t sample = 0;
        std::memcpy(&sample, &bytes[i], 2);
        looked_at += 2;
        if (std::abs(sample) < 50) {
          ++silent_samples;
        } else if (silent_samples > kRecordingRate / 20) {
          sounds = true;
        } else {
          silent_samples = 0;  // what the card still held
        }
      }
      return sounds;
    });
    if (!sounds) return std::nullopt;
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - start).count();
  }

  std::string ReadFrom(std::size_t place) const {
    std::ifstream stream(Recording(), std::ios::binary);
    stream.seekg(static_cast<std::streamoff>(place));
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  /// Every file as it must be; at most `torn_lines` lines of the logs may be incomplete.
  void ExpectFilesWhole(int torn_lines) {
    for (const auto& [id, record] : data_files_) {
      ASSERT_EQ(ReadHostFile(Host("QXDATA/" + id + ".DAT")), record);
    }
    const std::string record = ReadHostFile(Host("QXAIR/RESET.DTA"));
    EXPECT_TRUE(std::regex_match(record, std::regex("\"1\"\r\n\"RANDOM\"\r\n\"[A-Z]{3}.TPD\"\r\n\"\"\r\n")))
        << record;
    const std::string choice = ReadHostFile(Host("QXAIR/RANDSAT.DTA"));
    EXPECT_TRUE(std::regex_match(choice, std::regex("\"[A-Z]{3}.TPD\"\r\n\"1\"\r\n0\r\n"))) << choice;
    int torn = IncompleteLines(Host("QXAIR/QXERROR.LOG"), std::regex("\"R .*Auto-Restart Complete: .*\""));
    const std::regex proof(R"("\d\d-\d\d-\d{4}","\d\d:\d\d:\d\d [AP]M","[^"]+","[^"]+","R")");
    for (const auto& entry : fs::directory_iterator(Host("QXTEMPLT"))) {
      if (entry.path().extension() == ".LOG") torn += IncompleteLines(entry.path(), proof);
    }
    EXPECT_LE(torn, torn_lines);
  }

  bool IsSounding() const {
    const std::size_t now = RecordedBytes() / 2 * 2;
    Await(seconds(5), [&] { return RecordedBytes() > now + kRecordingRate; });
    const std::string bytes = ReadFrom(now);
    return std::any_of(bytes.begin(), bytes.end(), [](char byte) { return byte > 5 && byte < 120; });
  }

  static int IncompleteLines(const fs::path& log, const std::regex& complete) {
    std::istringstream lines(ReadHostFile(log));
    int incomplete = 0;
    for (std::string line; std::getline(lines, line);) {
      const bool ended = line.ends_with('\r');
      if (ended) line.pop_back();
      if (!ended || !std::regex_match(line, complete)) ++incomplete;
    }
    return incomplete;
  }

  TemporaryFolder folder_;
  NullSoundServer server_{folder_.path()};
  std::unique_ptr<Child> display_;
  std::unique_ptr<Child> recorder_;
  std::string display_name_;
  std::map<std::string, std::string> data_files_;
};

TEST_F(PowerCut, AtTwentyMoments_TheStationIsBackWithItsFilesWhole) {
  std::mt19937 random(20);
  std::vector<double> kill_to_sound;
  auto program = StartProgram();
  ASSERT_TRUE(AwaitSound());
  for (int cut = 0; cut < 20; ++cut) {
    std::this_thread::sleep_for(milliseconds(std::uniform_int_distribution<int>(20, 1600)(random)));
    program->Kill();
    program = StartProgram();
    const auto milliseconds_to_sound = AwaitSound();
    ASSERT_TRUE(milliseconds_to_sound) << "silent after cut " << cut;
    kill_to_sound.push_back(*milliseconds_to_sound);
    ExpectFilesWhole(0);
  }
  std::sort(kill_to_sound.begin(), kill_to_sound.end());
  std::cout << "kill to sound, 2,000 recordings: median " << kill_to_sound[10] << " ms, longest "
            << kill_to_sound.back() << " ms\n";
}

TEST_F(PowerCut, InTheMiddleOfEachWrite_CostsAtMostTheLineBeingWritten) {
  const std::string preload = std::string(QUIXAIR_BINARY_DIR) + "/libkill_at_write.so";
  if (!fs::exists(preload)) GTEST_SKIP() << "a sanitizer must be loaded first";
  int torn_lines = 0;
  for (const char* file : {"RESETRND.DTA", "QXERROR.LOG", "RANDSAT.DTA", "RESET.DTA", ".LOG"}) {
    for (const char* moment : {"opened", "half", "written"}) {
      const auto killed =
          StartProgram({{"LD_PRELOAD", preload}, {"QUIXAIR_KILL_FILE", file}, {"QUIXAIR_KILL_AT", moment}});
      ASSERT_TRUE(Await(seconds(10), [&] { return killed->ended(); })) << file << " was never " << moment;
      torn_lines += std::string_view(file).ends_with(".LOG") && std::string_view(moment) == "half" ? 1 : 0;
      const auto program = StartProgram();
      ASSERT_TRUE(AwaitSound()) << "silent after " << file << ' ' << moment;
      ExpectFilesWhole(torn_lines);
    }
  }
}

TEST_F(PowerCut, OfTheProgramAlone_NobodyButItsSupervisorBringsItBack) {
  const auto program = StartProgram();
  ASSERT_TRUE(AwaitSound());
  std::mt19937 random(21);
  for (int death = 0; death < 4; ++death) {
    std::this_thread::sleep_for(milliseconds(std::uniform_int_distribution<int>(20, 1600)(random)));
    const pid_t life = LifeOf(*program);
    kill(life, SIGKILL);
    ASSERT_TRUE(AwaitSound()) << "silent after death " << death;
    EXPECT_NE(LifeOf(*program), life);
  }
  const std::string log = ReadHostFile(Host("QXAIR/QXERROR.LOG"));
  EXPECT_NE(log.find(" The program was ended by signal 9 (Killed) and was started again\"\r\n"),
            std::string::npos)
      << log;
  program->Send(SIGTERM);
  EXPECT_TRUE(Await(seconds(10), [&] { return program->ended(); })) << "the session's end ends both";
}

TEST_F(PowerCut, OfTheSupervisorAlone_TheProgramGoesOn_AndStaysTheOnlyOne) {
  const auto program = StartProgram();
  ASSERT_TRUE(AwaitSound());
  const pid_t life = LifeOf(*program);
  program->Send(SIGKILL);
  ASSERT_TRUE(Await(seconds(5), [&] { return program->ended(); }));
  const auto second = StartProgram();
  EXPECT_TRUE(Await(seconds(10), [&] { return second->ended(); })) << "a second station on the same folders";
  EXPECT_EQ(kill(life, 0), 0);
  EXPECT_TRUE(IsSounding());
}

}  // namespace
}  // namespace quixair::testing
