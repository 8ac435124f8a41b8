#include "desktop/qt_timers.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <string>

#include "support/timer_contract.h"

namespace quixair::testing {
namespace {

using std::chrono::milliseconds;

/// Every millisecond is looked at.
class QtDriver {
 public:
  TimerService& timers() { return timers_; }
  void Pass(milliseconds span) {
    for (const milliseconds end = now_ + span; now_ < end;) {
      ++now_;
      timers_.RunDue();
    }
  }

 private:
  milliseconds now_{0};
  desktop::QtTimers timers_{[this] { return now_; }};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TimerContract, QtDriver);

/// What comes late: timers on a clock that the test sets.
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

TEST_F(QtTimersTest, MissedShots_AreNotQueued) {
  const auto late = Noting('l');
  const auto timer = Noting('t');
  late->Start(milliseconds(90));
  timer->Start(milliseconds(10));
  PassTo(95);
  EXPECT_EQ(ticks_, "tl") << "in the order in which they were due";
  late->Stop();
  PassTo(104);
  EXPECT_EQ(ticks_, "tl") << "the interval goes on from the late tick";
  PassTo(105);
  EXPECT_EQ(ticks_, "tlt");
}

TEST_F(QtTimersTest, LittleLate_DoesNotDrift) {
  const auto timer = Noting('t');
  timer->Start(milliseconds(10));
  PassTo(13);
  PassTo(20);
  EXPECT_EQ(ticks_, "tt");
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
