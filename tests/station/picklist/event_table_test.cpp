#include "station/picklist/event_table.h"

#include <gtest/gtest.h>

#include "station/picklist/lineup_totals.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class EventTableTest : public StationFixture {
 protected:
  EventTableTest() {
    AddSong("M1", 30500, "Ada");
    AddSpot("S1", 29500, "", "", "", "Baker");
    AddLiner("L1", 4000);
  }
  EventTable Loaded(std::string_view content) {
    PutFile("QXTEMPLT/A.TPP", content);
    EventTable table;
    read_ = table.ReadTemplate(station_.files(), "A.TPP");
    data_ = table.ReadDataFiles(station_.files());
    return table;
  }

  Status read_;
  Status data_;
};

TEST_F(EventTableTest, Rows_HoldWhatListAndDataFilesSay) {
  const EventTable table = Loaded(
      "\"M1\",\"old\"\r\n\"S1\",\"old\"\r\n\"L1\",\"old\"\r\n\">PAUSE<\",\"\"\r\n\">time\",\"\"\r\n"
      "\"06:30 PM\",\"****LOCAL "
      "BREAK***\"\r\n\"MGONE\",\"old\"\r\n\"EMPTY!!!\",\"\"\r\n\">LX\",\"\"\r\n\"\",\"\"\r\n");
  EXPECT_TRUE(read_.ok());
  ASSERT_EQ(table.EventCount(), 9);
  const struct {
    int number;
    const char *length, *drive, *field4, *field5;
  } rows[] = {{1, "30.5", "C", "Ada", "Title of M1"},
              {2, "29.5", "C", "Baker", "Spot S1"},
              {3, "4", "C", "Liner L1", "A"},
              {4, "0", "", "", ""},
              {5, "0", "", "", ""},
              {6, "0", "", "[Empty?]", ""},
              {7, "0", "", "[Empty?]", ""},
              {8, "0", "", "", ""},
              {9, "0", "", "", ""}};
  for (const auto& row : rows) {
    const PickListEvent& event = table.event(row.number);
    EXPECT_EQ(event.EventLength, row.length) << row.number;
    EXPECT_EQ(event.EventDrive, row.drive) << row.number;
    EXPECT_EQ(event.EventField4, row.field4) << row.number;
    EXPECT_EQ(event.EventField5, row.field5) << row.number;
  }
  // 30.5 and 29.5 both round to 30, the even one.
  EXPECT_EQ(table.TotalSeconds(), 64);
  EXPECT_EQ(EventRow(1, table.event(1)), "1 M1 Title of");
}

TEST_F(EventTableTest, EndOfFile_IsFoundInWholeTornAndEmptyLists) {
  EXPECT_EQ(Loaded("\"\",\"\"\r\n").EventCount(), 0);
  EXPECT_TRUE(read_.ok());
  EXPECT_EQ(Loaded("\"M1\",\"x\"\r\n\"S1\",\"x\"\r\n").EventCount(), 1) << "the last record ends the list";
  EXPECT_TRUE(read_.ok());
  EXPECT_EQ(Loaded("\"M1\",\"x\"\r\n\"\",\"\"\r\n\"S1\",\"x\"\r\n\"\",\"\"\r\n").EventCount(), 3);
  EXPECT_EQ(Loaded("\"M1\",\"x\"\r\n\"S1\"\r\n").EventCount(), 1);
  EXPECT_EQ(read_.error(), RunTimeError::kInputPastEnd);
  EventTable table;
  EXPECT_EQ(table.ReadTemplate(station_.files(), "GONE.TPP").error(), RunTimeError::kFileNotFound);
}

TEST_F(EventTableTest, HandOver_IsReadToItsEmptyLine) {
  EventTable table;
  EXPECT_EQ(table.ReadHandOver(station_.files()).error(), RunTimeError::kFileNotFound);
  PutFile("QXAIR/PICKLIST.DTA", "\"M1\"\r\n\"\"\r\n\">PAUSE\"\r\n\"\"\r\n");
  EXPECT_TRUE(table.ReadHandOver(station_.files()).ok());
  ASSERT_EQ(table.EventCount(), 3);
  EXPECT_EQ(table.event(2).EventId, "EMPTY!!!");
  EXPECT_EQ(table.next_id(1), "EMPTY!!!");
  EXPECT_EQ(table.next_id(3), "");
}

TEST_F(EventTableTest, DayLongList_KeepsTheSumThatTheScreenCanHold) {
  AddSong("M9", 3000000);
  std::string content;
  for (int i = 0; i < 12; ++i) content += "\"M9\",\"x\"\r\n";
  const EventTable table = Loaded(content + "\"\",\"\"\r\n");
  EXPECT_EQ(table.EventCount(), 12);
  EXPECT_EQ(data_.number(), 6);
  EXPECT_EQ(table.TotalSeconds(), 30000);
}

TEST_F(EventTableTest, NumberOutsideTheTable_EndsTheProgram) {
  const EventTable table = Loaded("\"M1\",\"x\"\r\n\"\",\"\"\r\n");
  EXPECT_EQ(table.event(2000).EventId, "");
  EXPECT_THROW(table.event(0), UnhandledRunTimeError);
  EXPECT_THROW(table.event(2001), UnhandledRunTimeError);
}

TEST(LineupTotals, Texts_KeepTheirOddArithmetic) {
  using Two = std::array<std::string, 2>;
  EXPECT_EQ(LineupTexts(0), (Two{"0 Seconds", "00h 0m 0.s"}));
  EXPECT_EQ(LineupTexts(1620), (Two{"1620 Seconds", "00h 27m 0.s"}));
  EXPECT_EQ(LineupTexts(300), (Two{"300 Seconds", "00h 4.m 0.s"})) << "a minutes text with a point";
  EXPECT_EQ(LineupTexts(5430), (Two{"5430 Seconds", "01h 30m 30.s"}));
  EXPECT_EQ(LineupTexts(32767), (Two{"32767 Seconds", "09h 6.m 7.s"}));
  using Three = std::array<std::string, 3>;
  EXPECT_EQ(RemainingTexts(137.46), (Three{"137.5 Seconds", "2.3 Minutes", "0.04 Hours"}));
  EXPECT_EQ(RemainingTexts(5.25, true), (Three{"05.25 Seconds", "0.1 Minutes", "0.00 Hours"}));
}

}  // namespace
}  // namespace quixair::testing
