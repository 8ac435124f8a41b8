#include "station/onair/start_time_frame.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class TimeScreen : public Screen {
 public:
  explicit TimeScreen(const Platform& platform) : Screen(platform, "Time", "Time") {
    Timer1.SetEnabled(false);
    Timer1.on_tick = [this] { ++ticks; };
  }
  Label Shown{*this, "Shown"};
  Timer Timer1{*this, "Timer1"};
  StartTimeFrame Frame{*this, Shown, Timer1, "Start Time = (MANUAL)"};
  int ticks = 0;
};

class StartTime : public StationFixture {
 protected:
  StartTime() {
    station_.StartProgram();
    screen_ = std::make_unique<TimeScreen>(station_.platform());
    frame().OpenFrame();
  }
  void TearDown() override { screen_.reset(); }
  StartTimeFrame& frame() { return screen_->Frame; }
  void Choose(int hour, int minute, int half) {
    if (hour >= 0) frame().TimeList1.PersonSelects({hour});
    if (minute >= 0) frame().TimeList2.PersonSelects({minute});
    if (half >= 0) frame().TimeList3.PersonSelects({half});
  }

  std::unique_ptr<TimeScreen> screen_;
};

TEST_F(StartTime, Frame_OpensWithItsListsFilledOnce) {
  const StartTimeFrame& f = frame();
  EXPECT_TRUE(f.TimeFrame2.visible());
  frame().OpenFrame();
  ASSERT_EQ(f.TimeList1.row_count(), 12);
  ASSERT_EQ(f.TimeList2.row_count(), 60);
  EXPECT_EQ(f.TimeList1.row(0) + f.TimeList1.row(11) + f.TimeList2.row(0) + f.TimeList2.row(59), "01120059");
  EXPECT_EQ(f.TimeList3.rows(), (std::vector<std::string>{"AM", "PM"}));
}

TEST_F(StartTime, Done_SetsTheTimeAndStartsItsTimer) {
  Choose(8, 5, 1);
  EXPECT_EQ(frame().TimeLabel6.caption(), "Selected = 09:05 PM");
  EXPECT_FALSE(frame().TimeFrame2.screen().FindControl("Timer1")->enabled());
  frame().TimeCommand1.Click();
  EXPECT_EQ(screen_->Shown.caption(), "Start Time = 09:05 PM");
  EXPECT_FALSE(frame().TimeFrame2.visible());
  EXPECT_EQ(frame().TimeList1.row_count(), 0);
  Advance(1s);
  EXPECT_EQ(screen_->ticks, 2);
  EXPECT_TRUE(frame().IsDue("09:05 PM"));
  for (const char* other : {"09:05 AM", "09:06 PM", ""}) EXPECT_FALSE(frame().IsDue(other)) << other;
}

TEST_F(StartTime, AnythingNotChosen_IsRefusedAndTheFrameStays) {
  const int choices[][3] = {{-1, -1, -1}, {0, -1, -1}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}};
  for (const auto& [hour, minute, half] : choices) {
    for (ListBox* list : {&frame().TimeList1, &frame().TimeList2, &frame().TimeList3}) list->Select(-1);
    Choose(hour, minute, half);
    QueueAnswer("OK");
    frame().TimeCommand1.Click();
    EXPECT_EQ(boxes().back().text, "You must highlight the hour, minute, and AM or PM");
    EXPECT_TRUE(frame().TimeFrame2.visible());
  }
  EXPECT_EQ(boxes().size(), 5U);
  Advance(10s);
  EXPECT_EQ(screen_->ticks, 0);
}

TEST_F(StartTime, Cancel_TakesATimeBackThatWasSetBefore) {
  Choose(0, 0, 0);
  frame().TimeCommand1.Click();
  frame().OpenFrame();
  EXPECT_EQ(frame().TimeLabel6.caption(), "Selected = ");
  Choose(1, -1, -1);
  frame().TimeCommand2.Click();
  EXPECT_EQ(screen_->Shown.caption(), "Start Time = (MANUAL)");
  EXPECT_FALSE(frame().TimeFrame2.visible());
  for (const char* time : {"01:00 AM", "02:00 AM", "02: "}) EXPECT_FALSE(frame().IsDue(time)) << time;
}

}  // namespace
}  // namespace quixair::testing
