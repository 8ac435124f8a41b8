#include "station/onair/air_fault_log.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class AirFaults : public StationFixture {
 protected:
  /// A drive is gone: the engine tries again five times a second.
  void FailFor(std::chrono::seconds span) {
    for (int i = 0; i < span.count() * 5; ++i) {
      log_.Add("M1 = Empty!!!", " M1 = Empty!!!");
      Advance(200ms);
    }
  }
  int LoggedLines() const {
    const std::string log = FileText("QXAIR/QXERROR.LOG");
    return static_cast<int>(std::count(log.begin(), log.end(), '\n'));
  }

  std::vector<std::string> rows_;
  AirFaultLog log_{station_.files(), station_.time(), ModeLetter::kRandom,
                   [this](const std::string& row) { rows_.push_back(row); }};
};

TEST_F(AirFaults, Line_GoesToTheScreenAndTheLog) {
  SetClock("2001-03-07 00:07:03");
  log_.Add("M1 = Empty!!!", " M1 = Empty!!!");
  EXPECT_EQ(rows_, (std::vector<std::string>{"M1 = Empty!!!"}));
  EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"), "\"R 03-07-01 12:07:03 a M1 = Empty!!!\"\r\n");
}

TEST_F(AirFaults, Outage_WritesFiftyLinesAndThenOneAMinute) {
  FailFor(10s);
  EXPECT_EQ(LoggedLines(), 50);
  FailFor(59s);
  EXPECT_EQ(LoggedLines(), 50);
  FailFor(2s);
  EXPECT_EQ(LoggedLines(), 51);
  FailFor(600s);
  EXPECT_EQ(LoggedLines(), 61);
  EXPECT_EQ(rows_.size(), 61U) << "the screen's list is no longer than the log";
}

TEST_F(AirFaults, ItemSounds_TheNextFaultIsNewsAgain) {
  FailFor(30s);
  log_.ItemBegan(1, AirItem());
  FailFor(1s);
  EXPECT_EQ(LoggedLines(), 55);
}

TEST_F(AirFaults, ClockSetBack_DoesNotSilenceTheLog) {
  FailFor(30s);
  SetClock("2001-01-01 00:00:00");
  FailFor(60s);
  EXPECT_EQ(LoggedLines(), 51);
}

TEST_F(AirFaults, LogThatCannotBeWritten_StillShowsOnTheScreen) {
  std::filesystem::remove_all(Host("QXAIR"));
  log_.Add("row", " row");
  EXPECT_EQ(rows_.size(), 1U);
}

}  // namespace
}  // namespace quixair::testing
