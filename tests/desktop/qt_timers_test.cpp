#include "desktop/qt_timers.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <string>

namespace quixair::testing {
namespace {

using std::chrono::milliseconds;

/// Timers on a clock that the test sets.
class QtTimersTest : public ::testing::Test {
 protected:
  void PassTo(int now) {
    now_ = milliseconds(now);
    timers_.RunDue();
  }
  std::unique_ptr<TimerShots> Noting(char letter) {
    return timers_.MakeTimer([this, letter] { ticks_ += letter; });
  }

  milliseconds now_{0};
  desktop::QtTimers timers_{[this] { return now_; }};
  std::string ticks_;
};

TEST_F(QtTimersTest, TickInTheOrderInWhichTheyAreDue) {
  const auto slow = Noting('s');
  const auto fast = Noting('f');
  slow->Start(milliseconds(30));
  fast->Start(milliseconds(20));
  PassTo(30);
  EXPECT_EQ(ticks_, "fs");
}

TEST_F(QtTimersTest, DueTogether_TickInTheOrderOfTheirMaking) {
  const auto first = Noting('1');
  const auto second = Noting('2');
  second->Start(milliseconds(20));
  first->Start(milliseconds(20));
  PassTo(20);
  EXPECT_EQ(ticks_, "12");
}

TEST_F(QtTimersTest, NotDue_DoesNotTick) {
  const auto timer = Noting('t');
  timer->Start(milliseconds(20));
  PassTo(19);
  EXPECT_EQ(ticks_, "");
}

TEST_F(QtTimersTest, MissedShots_AreNotQueued) {
  const auto timer = Noting('t');
  timer->Start(milliseconds(10));
  PassTo(95);
  EXPECT_EQ(ticks_, "t");
  PassTo(104);
  EXPECT_EQ(ticks_, "t") << "the interval goes on from the late tick";
  PassTo(105);
  EXPECT_EQ(ticks_, "tt");
}

TEST_F(QtTimersTest, LittleLate_DoesNotDrift) {
  const auto timer = Noting('t');
  timer->Start(milliseconds(10));
  PassTo(13);
  PassTo(20);
  EXPECT_EQ(ticks_, "tt");
}

TEST_F(QtTimersTest, StartedAnew_CountsFromNow) {
  const auto timer = Noting('t');
  timer->Start(milliseconds(10));
  now_ = milliseconds(8);
  timer->Start(milliseconds(10));
  PassTo(17);
  EXPECT_EQ(ticks_, "");
  PassTo(18);
  EXPECT_EQ(ticks_, "t");
}

TEST_F(QtTimersTest, StoppedInItsOwnTick_TicksNoMore) {
  std::unique_ptr<TimerShots> timer;
  timer = timers_.MakeTimer([this, &timer] {
    ticks_ += 't';
    timer->Stop();
  });
  timer->Start(milliseconds(10));
  PassTo(10);
  PassTo(50);
  EXPECT_EQ(ticks_, "t");
}

TEST_F(QtTimersTest, DestroyedInItsOwnTick_TicksNoMore) {
  std::unique_ptr<TimerShots> timer;
  timer = timers_.MakeTimer([this, &timer] {
    ticks_ += 't';
    timer.reset();
    ticks_ += 'x';  // what the tick holds lives on till its end
  });
  timer->Start(milliseconds(10));
  PassTo(10);
  PassTo(50);
  EXPECT_EQ(ticks_, "tx");
}

TEST_F(QtTimersTest, TickMayStopAnotherThatIsDue) {
  const auto second = Noting('2');
  const auto first = timers_.MakeTimer([this, &second] {
    ticks_ += '1';
    second->Stop();
  });
  first->Start(milliseconds(10));
  second->Start(milliseconds(11));
  PassTo(20);
  EXPECT_EQ(ticks_, "1");
}

TEST_F(QtTimersTest, StartedInATick_WaitsItsInterval) {
  const auto second = Noting('2');
  const auto first = timers_.MakeTimer([this, &second] {
    ticks_ += '1';
    second->Start(milliseconds(1));
  });
  first->Start(milliseconds(10));
  PassTo(10);
  EXPECT_EQ(ticks_, "1");
  PassTo(11);
  EXPECT_EQ(ticks_, "12");
}

TEST_F(QtTimersTest, TickThatWaits_LetsTheOthersGoOn) {
  const auto other = Noting('o');
  bool waiting = false;
  const auto waits = timers_.MakeTimer([this, &waiting] {
    if (std::exchange(waiting, true)) return;
    ticks_ += '<';
    PassTo(40);  // as a box does that runs the event loop
    ticks_ += '>';
  });
  waits->Start(milliseconds(10));
  other->Start(milliseconds(20));
  PassTo(10);
  EXPECT_EQ(ticks_, "<o>");
}

TEST(QtTimersOnTheEventLoop, WakesByItself_AlsoInsideATick) {
  desktop::QtTimers timers;
  QEventLoop outer;
  QEventLoop inner;
  QTimer::singleShot(20000, &outer, [&outer] { outer.exit(1); });  // fails instead of hanging
  QTimer::singleShot(20000, &inner, [&inner] { inner.exit(1); });
  int inner_result = -1;
  const auto second = timers.MakeTimer([&inner] { inner.quit(); });
  std::unique_ptr<TimerShots> first;
  first = timers.MakeTimer([&] {
    first->Stop();
    inner_result = inner.exec();
    outer.quit();
  });
  second->Start(milliseconds(30));
  first->Start(milliseconds(1));
  EXPECT_EQ(outer.exec(), 0);
  EXPECT_EQ(inner_result, 0) << "a timer must go on while another's tick waits in a box";
}

}  // namespace
}  // namespace quixair::testing
