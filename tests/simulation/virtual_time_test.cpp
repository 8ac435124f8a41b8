#include "simulation/virtual_time.h"

#include <gtest/gtest.h>

#include "script/script_language.h"
#include "station/platform/civil_time.h"
#include "support/timer_contract.h"

namespace quixair::testing {
namespace {

using namespace std::chrono_literals;

class VirtualDriver {
 public:
  TimerService& timers() { return time_; }
  void Pass(std::chrono::milliseconds span) { time_.Advance(span); }

 private:
  simulation::VirtualTime time_{script::MomentOf("2026-11-22 20:00:00")};
};
INSTANTIATE_TYPED_TEST_SUITE_P(VirtualTime, TimerContract, VirtualDriver);

class VirtualTimeTest : public ::testing::Test {
 protected:
  std::string Now() const { return script::Stamp(time_.Now()); }

  simulation::VirtualTime time_{script::MomentOf("2026-11-22 20:00:00")};
};

TEST_F(VirtualTimeTest, TicksSeeTheMomentAtWhichTheyAreDue) {
  std::string seen;
  const auto timer = time_.MakeTimer([&] { seen += Now().substr(17) + ' '; });
  timer->Start(210ms);
  time_.Advance(500ms);
  EXPECT_EQ(seen, "00.210 00.420 ");
  EXPECT_EQ(Now(), "2026-11-22 20:00:00.500");
}

TEST_F(VirtualTimeTest, ClockSetBackOrForth_MovesNoTimerAndNoSteadyTime) {
  int ticks = 0;
  const auto timer = time_.MakeTimer([&] { ++ticks; });
  timer->Start(100ms);
  const SteadyTime begin = time_.Steady();
  for (const char* moment : {"2026-11-22 19:00:00", "2027-01-01 00:00:00", "2020-02-29 12:00:00"}) {
    time_.Advance(60ms);
    time_.SetCivil(script::MomentOf(moment));
    EXPECT_EQ(Now(), std::string(moment) + ".000");
  }
  EXPECT_EQ(ticks, 1);
  time_.Advance(20ms);
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(time_.Steady() - begin, 200ms);
}

TEST_F(VirtualTimeTest, TimePassesWhileATickHoldsABoxOpen_NeverGoesBackAndQueuesNothing) {
  int ticks = 0;
  bool box_open = false;
  std::unique_ptr<TimerShots> other = time_.MakeTimer([&] { ++ticks; });
  const auto boxed = time_.MakeTimer([&] {
    if (std::exchange(box_open, true)) return;
    time_.Advance(10s);
  });
  other->Start(1s);
  boxed->Start(500ms);
  time_.Advance(600ms);
  EXPECT_EQ(Now(), "2026-11-22 20:00:10.500");
  EXPECT_EQ(ticks, 10) << "timers go on behind the box";
}

TEST_F(VirtualTimeTest, AdvanceUntil_GoesToTheNextSuchTimeOfDay) {
  time_.AdvanceUntil(21, 15, 0);
  EXPECT_EQ(Now(), "2026-11-22 21:15:00.000");
  time_.AdvanceUntil(21, 15, 0);
  EXPECT_EQ(Now(), "2026-11-23 21:15:00.000") << "a whole day when the clock reads so now";
  time_.Advance(1ms);
  time_.AdvanceUntil(0, 0, 0);
  EXPECT_EQ(Now(), "2026-11-24 00:00:00.000");
}

TEST_F(VirtualTimeTest, Interrupted_StopsAtTheTickThatEndsTheProgram) {
  bool ended = false;
  const auto timer = time_.MakeTimer([&] { ended = true; });
  timer->Start(1s);
  time_.interrupted = [&] { return ended; };
  time_.Advance(1h);
  EXPECT_EQ(Now(), "2026-11-22 20:00:01.000");
}

}  // namespace
}  // namespace quixair::testing
