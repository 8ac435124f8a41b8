#pragma once

// What every source of ticks promises, whatever drives it. A driver gives the service and lets time pass:
//
//   struct Driver {
//     TimerService& timers();
//     void Pass(std::chrono::milliseconds span);  // ticks come at their moment
//   };
//   INSTANTIATE_TYPED_TEST_SUITE_P(VirtualTime, TimerContract, Driver);

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

#include "station/platform/timers.h"

namespace quixair::testing {

template <class Driver>
class TimerContract : public ::testing::Test {
 protected:
  using Ms = std::chrono::milliseconds;

  /// A timer that notes `letter` at each tick.
  std::unique_ptr<TimerShots> Noting(char letter) {
    return driver_.timers().MakeTimer([this, letter] { ticks_ += letter; });
  }
  void Pass(int milliseconds) { driver_.Pass(Ms(milliseconds)); }

  Driver driver_;
  std::string ticks_;
};

TYPED_TEST_SUITE_P(TimerContract);

TYPED_TEST_P(TimerContract, ANewTimerStandsStill) {
  const auto timer = this->Noting('a');
  this->Pass(1000);
  EXPECT_EQ(this->ticks_, "");
}

TYPED_TEST_P(TimerContract, TicksComeWhenDueAndGoOn) {
  const auto slow = this->Noting('s');
  const auto fast = this->Noting('f');
  slow->Start(std::chrono::milliseconds(50));
  fast->Start(std::chrono::milliseconds(20));
  this->Pass(19);
  EXPECT_EQ(this->ticks_, "");
  this->Pass(1);
  EXPECT_EQ(this->ticks_, "f");
  this->Pass(31);
  EXPECT_EQ(this->ticks_, "ffs");
}

TYPED_TEST_P(TimerContract, DueTogether_TickInTheOrderOfTheirMaking) {
  const auto first = this->Noting('1');
  const auto second = this->Noting('2');
  second->Start(std::chrono::milliseconds(30));
  first->Start(std::chrono::milliseconds(30));
  this->Pass(90);
  EXPECT_EQ(this->ticks_, "121212");
}

TYPED_TEST_P(TimerContract, StartAgain_BeginsTheIntervalAnew) {
  const auto timer = this->Noting('t');
  timer->Start(std::chrono::milliseconds(100));
  this->Pass(90);
  timer->Start(std::chrono::milliseconds(40));
  this->Pass(39);
  EXPECT_EQ(this->ticks_, "");
  this->Pass(1);
  EXPECT_EQ(this->ticks_, "t");
}

TYPED_TEST_P(TimerContract, StoppedInItsOwnTick_TicksNoMore) {
  std::unique_ptr<TimerShots> timer;
  timer = this->driver_.timers().MakeTimer([&] {
    this->ticks_ += 't';
    timer->Stop();
  });
  timer->Start(std::chrono::milliseconds(10));
  this->Pass(100);
  EXPECT_EQ(this->ticks_, "t");
}

TYPED_TEST_P(TimerContract, DestroyedInItsOwnTick_TicksNoMore) {
  std::unique_ptr<TimerShots> timer;
  const std::string letter = "destroyed";  // read after the destruction, from the tick that still runs
  timer = this->driver_.timers().MakeTimer([&, letter] {
    timer.reset();
    this->ticks_ += letter;
  });
  timer->Start(std::chrono::milliseconds(10));
  this->Pass(100);
  EXPECT_EQ(this->ticks_, letter);
}

TYPED_TEST_P(TimerContract, DestroyedOrStoppedByAnotherDueAtTheSameMoment_DoesNotTick) {
  std::unique_ptr<TimerShots> stopped;
  std::unique_ptr<TimerShots> destroyed;
  const auto killer = this->driver_.timers().MakeTimer([&] {
    this->ticks_ += 'k';
    if (stopped) stopped->Stop();
    destroyed.reset();
  });
  stopped = this->Noting('s');
  destroyed = this->Noting('d');
  for (TimerShots* timer : {killer.get(), stopped.get(), destroyed.get()}) {
    timer->Start(std::chrono::milliseconds(10));
  }
  this->Pass(10);
  EXPECT_EQ(this->ticks_, "k");
}

TYPED_TEST_P(TimerContract, StartedByATick_CountsFromThatMoment) {
  const auto late = this->Noting('l');
  std::unique_ptr<TimerShots> starter;
  starter = this->driver_.timers().MakeTimer([&] {
    starter->Stop();
    late->Start(std::chrono::milliseconds(30));
  });
  starter->Start(std::chrono::milliseconds(20));
  this->Pass(49);
  EXPECT_EQ(this->ticks_, "");
  this->Pass(1);
  EXPECT_EQ(this->ticks_, "l");
}

REGISTER_TYPED_TEST_SUITE_P(TimerContract, ANewTimerStandsStill, TicksComeWhenDueAndGoOn,
                            DueTogether_TickInTheOrderOfTheirMaking, StartAgain_BeginsTheIntervalAnew,
                            StoppedInItsOwnTick_TicksNoMore, DestroyedInItsOwnTick_TicksNoMore,
                            DestroyedOrStoppedByAnotherDueAtTheSameMoment_DoesNotTick,
                            StartedByATick_CountsFromThatMoment);

}  // namespace quixair::testing
