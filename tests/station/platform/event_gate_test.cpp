#include "station/platform/event_gate.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "simulation/scripted_dialogs.h"

namespace quixair {
namespace {

class EventGateTest : public ::testing::Test {
 protected:
  EventGateTest() {
    gate_.on_end = [this](int exit_code) { said_ += "end " + std::to_string(exit_code) + ';'; };
    gate_.on_fault = [this](const std::string& what) { said_ += "fault " + what + ';'; };
  }
  void Say(const std::string& word) { said_ += word + ';'; }

  simulation::ScriptedDialogs dialogs_;
  EventGate gate_{dialogs_};
  std::string said_;
};

TEST_F(EventGateTest, ProgramEndInANestedEvent_EndsOnceAndNothingRunsAfterwards) {
  gate_.Enter([this] {
    gate_.Enter([] { EndProgram(3); });
    Say("outer goes on");
    gate_.LeaveIfEnded();
    Say("never");
  });
  gate_.Enter([this] { Say("never"); });
  EXPECT_EQ(said_, "end 3;outer goes on;");
  EXPECT_TRUE(gate_.ended());
  EXPECT_EQ(gate_.exit_code(), 3);
}

TEST_F(EventGateTest, FaultWithoutARule_ShowsItsNumberAndEndsWithOne) {
  dialogs_.QueueAnswer("OK");
  gate_.Enter([this] {
    OrEndProgram(Status(RunTimeError::kDiskFull));
    Say("never");
  });
  ASSERT_EQ(dialogs_.shown().size(), 1U);
  EXPECT_EQ(dialogs_.shown().front().text, "Run-time error '61'");
  EXPECT_EQ(dialogs_.shown().front().style, 16);
  EXPECT_EQ(said_, "end 1;");
  EXPECT_EQ(gate_.exit_code(), 1);
}

TEST_F(EventGateTest, ProgramEndsWhileTheFaultsBoxIsOpen_TheFirstEndCounts) {
  dialogs_.QueueAnswer("OK");
  dialogs_.on_box = [this](const simulation::ShownBox&) {
    gate_.Enter([] { EndProgram(0); });  // a tick behind the box
    gate_.LeaveIfEnded();
  };
  gate_.Enter([] { static_cast<void>(OrEndProgram(Result<int>(RunTimeError::kPathNotFound))); });
  EXPECT_EQ(said_, "end 0;");
}

TEST_F(EventGateTest, Exception_IsReportedAndTheNextEventRuns) {
  gate_.Enter([] { throw std::out_of_range("row 7"); });
  gate_.Enter([this] { Say("next"); });
  EXPECT_EQ(said_, "fault row 7;next;");
  EXPECT_FALSE(gate_.ended());
}

TEST_F(EventGateTest, IdleTasks_WaitForTheOutermostEvent) {
  gate_.Enter([this] {
    gate_.WhenIdle([this] {
      Say("first");
      gate_.WhenIdle([this] { Say("from a task"); });
    });
    gate_.Enter([this] { gate_.WhenIdle([this] { Say("second"); }); });
    Say("still inside");
    throw std::runtime_error("the tasks run nevertheless");
  });
  EXPECT_EQ(said_, "still inside;fault the tasks run nevertheless;first;from a task;second;");
  gate_.WhenIdle([this] { said_ = "at once"; });
  EXPECT_EQ(said_, "at once");
}

}  // namespace
}  // namespace quixair
