// The supervisor over lives that are made to end in every way: processes of the test's own, without window or sound.

#include "app/supervisor.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>

#include "station/console/settings_files.h"
#include "station/host/disk_files.h"
#include "station/host/drives.h"
#include "station/host/system_clock.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr milliseconds kHeartbeat{400};

class Supervised : public ::testing::Test {
 protected:
  using Live = std::function<void(const Life& life, int number)>;

  void SetUp() override {
    WriteHostFile(Host("QXAIR/RESETON.DTA"), "\"1\"\r\n");
    WriteHostFile(Host("QXAIR/RESET.DTA"), "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n");
  }
  std::filesystem::path Host(const std::string& path) const { return folder_.path() / "C" / path; }
  DiskFiles Files() const {
    Drives drives;
    drives.Set('C', folder_.path() / "C");
    return DiskFiles(drives);
  }

  /// Lets lives live until the supervisor has enough; what each was told is a line of lives().
  int Supervise(const Live& live) {
    DiskFiles files = Files();
    const SystemClock clock;
    Supervisor supervisor(files, clock, {.heartbeat = kHeartbeat, .between_tries = milliseconds(50)});
    const std::optional<Life> life = supervisor.Run();
    if (!life) return supervisor.exit_code();
    std::ofstream(Lives(), std::ios::app) << (life->pause.count() > 0 ? "pause"
                                              : life->bare            ? "bare"
                                                                      : "whole")
                                          << ' ' << life->log_line << '\n';
    live(*life, static_cast<int>(lives().size()));
    _exit(0);
  }
  std::filesystem::path Lives() const { return folder_.path() / "lives"; }
  std::vector<std::string> lives() const {
    std::istringstream text(ReadHostFile(Lives()));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

  TemporaryFolder folder_;
};

void BeOnAir(const Life& life) {
  life.lifeline.Say(Word::kDisplay);
  life.lifeline.Say(Word::kOnAir);
}

TEST_F(Supervised, WhatBringsTheProgramBack_AndWhatEndsBoth) {
  const auto in_a_run = [](const std::function<void()>& end) {
    return [end](const Life& life, int number) {
      BeOnAir(life);
      if (number == 1) end();
      life.lifeline.Say(Word::kLeaving);
    };
  };
  struct Case {
    const char* what;
    Live live;
    std::size_t lives;
    int exit_code;
  };
  const std::vector<Case> cases = {
      {"it dies by a signal", in_a_run([] { raise(SIGUSR1); }), 2, 0},
      {"it is killed from outside", in_a_run([] { raise(SIGKILL); }), 2, 0},
      {"it ends by a fault", in_a_run([] { _exit(1); }), 2, 0},
      {"it stands still", in_a_run([] { sleep(30); }), 2, 0},
      {"it is asked to end", in_a_run([] {}), 1, 0},
      {"it ends when no run came on", [](const Life& life, int) { life.lifeline.Say(Word::kIdle), _exit(1); },
       1, 1},
      {"it stands still without a run",
       [](const Life& life, int) { life.lifeline.Say(Word::kIdle), usleep(900'000), _exit(4); }, 1, 4},
      {"there is no display", [](const Life&, int) { raise(SIGUSR1); }, 1, 128 + SIGUSR1},
  };
  for (const Case& each : cases) {
    std::filesystem::remove(Lives());
    EXPECT_EQ(Supervise(each.live), each.exit_code) << each.what;
    EXPECT_EQ(lives().size(), each.lives) << each.what;
  }
}

TEST_F(Supervised, OnlyARunWithTheSwitchOn_ComesBack) {
  const auto dies = [](const Life& life, int) { BeOnAir(life), raise(SIGUSR1); };
  WriteHostFile(Host("QXAIR/RESETON.DTA"), "\"0\"\r\n");
  EXPECT_EQ(Supervise(dies), 128 + SIGUSR1);
  EXPECT_EQ(lives().size(), 1U) << "the switch is off";
  SetUp();
  WriteHostFile(Host("QXAIR/RESET.DTA"), "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n");
  Supervise(dies);
  EXPECT_EQ(lives().size(), 2U) << "the run had ended in order";
}

TEST_F(Supervised, AnEventThatEndsTheProgramTwice_IsNotTriedAThirdTime) {
  WriteHostFile(Host("QXAIR/RESET.DTA"), "\"1\"\r\n\"PICKLIST\"\r\n\"MON.TPP\"\r\n12\r\n");
  Supervise([](const Life& life, int number) {
    BeOnAir(life);
    if (number < 3) raise(SIGUSR1);
    life.lifeline.Say(Word::kLeaving);
  });
  DiskFiles files = Files();
  const RestartRecord record = ReadRestartRecord(files);
  EXPECT_TRUE(record.running);
  EXPECT_EQ(record.template_name, "MON.TPP");
  EXPECT_EQ(record.event_number, 13);
  ASSERT_EQ(lives().size(), 3U);
  EXPECT_EQ(lives()[1].substr(0, 8), "whole P ");
  EXPECT_TRUE(lives()[2].ends_with(
      " The program was ended by signal 10 (User defined signal 1) and was started again: "
      "event 12 ended it twice, on with event 13"))
      << lives()[2];
}

TEST_F(Supervised, WhatDiesAsSoonAsItStands_IsTriedBareAndThenWithPauses) {
  Supervise([](const Life& life, int number) {
    if (life.pause.count() > 0) _exit(number == 7 ? 0 : Life::kNoMore);
    BeOnAir(life);
    raise(SIGUSR1);
  });
  std::string kinds;
  for (const std::string& life : lives()) kinds += life.substr(0, life.find(' ')) + ' ';
  EXPECT_EQ(kinds, "whole whole whole whole whole bare pause bare pause ");
}

TEST(RestartRule, CountsWhatTheProgramDoesToItself) {
  struct Case {
    const char* what;
    seconds apart;
    seconds lived;
    bool from_outside;
    int first_bare;  // the death, from 1; 0 never
    int first_wait;
  };
  const std::vector<Case> cases = {
      {"dies at once", seconds(1), seconds(1), false, 5, 6},
      {"dies every twenty seconds", seconds(20), seconds(20), false, 5, 0},
      {"dies every two minutes", minutes(2), minutes(2), false, 0, 0},
      {"is killed again and again while it plays", seconds(1), seconds(1), true, 0, 0},
  };
  for (const Case& each : cases) {
    RestartRule rule;
    int first_bare = 0;
    int first_wait = 0;
    for (int death = 1; death <= 12; ++death) {
      const RestartPlan plan = rule.After({.at = SteadyTime(each.apart * death),
                                           .lived = each.lived,
                                           .from_outside = each.from_outside,
                                           .event = {}});
      if (plan.bare && first_bare == 0) first_bare = death;
      if (plan.wait && first_wait == 0) first_wait = death;
    }
    EXPECT_EQ(first_bare, each.first_bare) << each.what;
    EXPECT_EQ(first_wait, each.first_wait) << each.what;
  }
}

}  // namespace
}  // namespace quixair::testing
