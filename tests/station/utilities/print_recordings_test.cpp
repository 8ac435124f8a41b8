#include <gmock/gmock.h>

#include "station/screen/grid.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using simulation::PrintJob;
using ::testing::ElementsAre;

constexpr const char* kScreen = "PrintRecordingsMDI";

class PrintRecordings : public StationFixture {
 protected:
  void Open() {
    SetClock("2026-11-22 20:30:00");
    StartAt("PrintRecordings");
  }
  /// Opens the screen, loads a kind by its button and leaves the sorting.
  void OpenLoaded(const char* kind_button) {
    Open();
    Click(kScreen, kind_button);
    Advance(1s);
    Click(kScreen, "Command17");
  }
  void PrintAll() { Click(kScreen, "Command3", {"OK"}); }
  void TypeRange(std::string_view lowest, std::string_view highest) {
    Click(kScreen, "Command4");
    Find<TextBox>(kScreen, "Text2").Edit(std::string(lowest));
    Find<TextBox>(kScreen, "Text3").Edit(std::string(highest));
  }
  const std::vector<PrintJob>& jobs() { return station_.printer().jobs(); }
  const PrintedPage& page(std::size_t number) { return jobs().back().pages.at(number - 1); }
  std::string Column(int column) {
    std::string texts;
    const auto& grid = Find<Grid>(kScreen, "MSFlexGrid1");
    for (int row = 0; row < grid.row_count(); ++row) texts += grid.cell(row, column) + ' ';
    return texts;
  }
  bool Enabled(const char* button) { return Find<Button>(kScreen, button).enabled(); }
  bool Visible(const char* frame) { return Find<Frame>(kScreen, frame).visible(); }

  static std::string Rule(char c) { return std::string(80, c); }
};

TEST_F(PrintRecordings, Spots_HeadAndLinesStandAtTheirColumns) {
  AddSpot("S1042", 95000, "P", "03-07-26", "12-24-26", "Baker");
  OpenLoaded("Command7");
  EXPECT_EQ(Shown(kScreen, "Label3"), "PRINT SPOTS");
  PrintAll();
  ASSERT_EQ(jobs().size(), 1U);
  EXPECT_THAT(
      page(1),
      ElementsAre(Rule('^'), "Quixair SPOT Listings    -  Created on: 11/22/2026    Page: 1", Rule('-'),
                  " I.D.      Account         Title             Len.  (Min.)  Start    Kill  P A D ",
                  Rule('-'),
                  "1    S1042  Baker           Spot S1042      95    (1.58)03-07-26 12-24-26 P A C"));
}

TEST_F(PrintRecordings, MusicAndLiners_PrintTheirOwnColumns) {
  AddSong("M0001", 183456, "An artist of twenty l");
  AddLiner("LL001", 4000);
  OpenLoaded("Command8");
  PrintAll();
  EXPECT_EQ(page(1)[1], "  The Quixair MUSIC Listings     -  Created on: 11/22/2026    Page: 1");
  EXPECT_EQ(page(1)[5], "1     M0001  An artist of twen Title of M0001    183.456(3.05) 01-01-26 2026  C");
  Click(kScreen, "Command21", {"Yes"});
  Click(kScreen, "Command9");
  Advance(1s);
  Click(kScreen, "Command17");
  PrintAll();
  EXPECT_EQ(page(1)[1], "  The Quixair LINER Listings     -  Created: 11/22/2026   Page: 1");
  EXPECT_EQ(page(1)[5], "1    LL001  Liner LL001          A  G  4     (0.06)  01-01-26             C");
}

TEST_F(PrintRecordings, UnknownLengthAndTornFile_PrintAsTheyAre) {
  AddSpot("S1", 1000);
  PutFile(
      "QXDATA/S1.DAT",
      "\"[New]\"\r\n\"S1\"\r\n\"C\"\r\n\"B\"\r\n\"T\"\r\n\"01-01-26\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
  PutFile("QXDATA/S2.DAT", "\"30\"\r\n\"S2\"\r\n");
  PutFile("QXDATA/S3.DAT", FileText("QXDATA/S1.DAT"));
  OpenLoaded("Command7");
  Click(kScreen, "Command1");
  Click(kScreen, "Command15");
  EXPECT_EQ(Column(1), "S1 S2 S3 ") << "the files' own names, by which one that is torn or copied is found";
  PrintAll();
  EXPECT_EQ(page(1)[5], "1    S1     B               T               [New] (0)   01-01-26              C");
  EXPECT_EQ(page(1)[6], "2");
}

TEST_F(PrintRecordings, FiftyThreeLinesFillAPage) {
  for (int i = 0; i < 54; ++i) AddLiner("L" + std::to_string(100 + i), 1000);
  OpenLoaded("Command9");
  PrintAll();
  ASSERT_EQ(jobs().back().pages.size(), 2U);
  EXPECT_EQ(page(1).size(), 5U + 53U);
  ASSERT_EQ(page(2).size(), 5U + 1U);
  EXPECT_TRUE(page(2)[1].ends_with("Page: 2"));
  EXPECT_TRUE(page(2)[5].starts_with("54 "));
  TypeRange("1", "53");
  Click(kScreen, "Command23", {"OK"});
  EXPECT_EQ(jobs().back().pages.size(), 1U);
}

TEST_F(PrintRecordings, Sort_CarriesRowsAlongAndNumbersThemAnew) {
  AddSpot("S1", 1000, "", "", "", "beta");
  AddSpot("S2", 2000, "", "", "", "Zulu");
  AddSpot("S3", 3000, "", "", "", "alpha");
  OpenLoaded("Command7");
  const struct {
    const char *button, *ids, *told;
  } cases[] = {{"Command16", "S2 S3 S1 ", "Sorted By Account Name"},
               {"Command15", "S1 S2 S3 ", "Sorted By File Name"},
               {"Command19", "S1 S2 S3 ", "Sorted By Title"}};
  for (const auto& each : cases) {
    Click(kScreen, "Command1");
    EXPECT_FALSE(Enabled("Command3")) << "printing waits for the sort frame";
    Click(kScreen, each.button);
    EXPECT_EQ(Column(1), each.ids);
    EXPECT_EQ(Column(0), "1 2 3 ");
    EXPECT_EQ(Shown(kScreen, "Text1"), each.told);
    EXPECT_EQ(Shown(kScreen, "Text5"), "Spots Loaded");
    EXPECT_TRUE(Enabled("Command3"));
  }
}

TEST_F(PrintRecordings, RangeThatIsNone_IsRefused) {
  AddLibrary(2, 4, 1);
  OpenLoaded("Command9");
  const struct {
    const char *lowest, *highest, *text;
  } cases[] = {{"", "2", "'Lowest' Number is Too Low or\nYou Didn't Enter a Valid Character"},
               {"0", "2", "'Lowest' Number is Too Low or\nYou Didn't Enter a Valid Character"},
               {"1", "x", "'Lowest' Number is Too Low or\nYou Didn't Enter a Valid Character"},
               {"6", "7", "'Lowest' Number is Too High"},
               {"3", "2", "'Highest' Number is Less Than 'Lowest' Number"},
               {"5", "0", "'Highest' Number is Less Than 'Lowest' Number"},
               {"3", "6", "'Highest' Number is Too High"}};
  for (const auto& each : cases) {
    TypeRange(each.lowest, each.highest);
    Click(kScreen, "Command23", {"OK"});
    EXPECT_EQ(boxes().back().title, "Invalid Entry");
    EXPECT_EQ(boxes().back().text, each.text) << each.lowest << " to " << each.highest;
    Click(kScreen, "Command24");
  }
  EXPECT_TRUE(jobs().empty());
}

TEST_F(PrintRecordings, Range_RemovesTheOthersAndPrintsTheRest) {
  for (const char* id : {"S1", "S2", "S3", "S4", "S5"}) AddSpot(id, 1000);
  OpenLoaded("Command7");
  Click(kScreen, "Command1");
  Click(kScreen, "Command15");
  TypeRange("2", "3");
  EXPECT_EQ(Shown(kScreen, "Frame3"), "Select Range to Print:");
  Click(kScreen, "Command23", {"Cancel"});
  EXPECT_EQ(Shown(kScreen, "Text1"), "Thanks for Using Quixair 2000");
  EXPECT_EQ(Find<TextBox>(kScreen, "Text1").back_color(), (Color{0xC0C0C0}));
  EXPECT_EQ(Column(1), "S2 S3 ");
  EXPECT_TRUE(jobs().empty());
  PrintAll();
  ASSERT_EQ(page(1).size(), 7U);
  EXPECT_TRUE(page(1)[5].starts_with("2    S2 ")) << "under the number that was asked for";
  EXPECT_TRUE(page(1)[6].starts_with("3    S3 "));
  EXPECT_EQ(Find<TextBox>(kScreen, "Text1").back_color(), std::nullopt) << "the banner is back";
  TypeRange("1", "3");
  Click(kScreen, "Command23", {"OK"});
  EXPECT_EQ(boxes().back().title, "Invalid Entry") << "1 is removed";
  TypeRange("3", "3");
  Click(kScreen, "Command23", {"OK"});
  ASSERT_EQ(page(1).size(), 6U);
  EXPECT_TRUE(page(1)[5].starts_with("3    S3 "));
}

TEST_F(PrintRecordings, NoFiles_IsTold) {
  Open();
  Click(kScreen, "Command8", {"OK"});
  EXPECT_EQ(Shown(kScreen, "Text5"), "NO MUSIC FILES FOUND");
  EXPECT_EQ(boxes().back().text, "No Music Files Found");
  EXPECT_TRUE(Visible("Frame1"));
  EXPECT_FALSE(Enabled("Command3"));
}

TEST_F(PrintRecordings, Loading_GoesInPortionsAndMayBeLeft) {
  for (int i = 0; i < 1200; ++i) AddLiner("L" + std::to_string(1000 + i), 1000);
  Open();
  Click(kScreen, "Command9");
  EXPECT_EQ(Shown(kScreen, "Text5"), "1200 Liner Files Present");
  Advance(6ms);
  EXPECT_EQ(Shown(kScreen, "Text4"), "Loading Liners, Please Wait...  500");
  for (const char* button : {"Command1", "Command3", "Command4", "Command21"}) EXPECT_FALSE(Enabled(button));
  EXPECT_FALSE(Visible("Frame1"));
  Click(kScreen, "Command2");
  EXPECT_FALSE(IsOpen(kScreen));
  Advance(1s);
  Menu("PrintRecordings");
  Click(kScreen, "Command9");
  Advance(1s);
  EXPECT_EQ(Shown(kScreen, "Text5"), "Liners Loaded");
  EXPECT_EQ(Find<Grid>(kScreen, "MSFlexGrid1").row_count(), 1200);
}

TEST_F(PrintRecordings, PrinterThatFails_IsTold_AndTheListStays) {
  AddSpot("S1", 1000);
  station_.printer().default_name = "Office";
  OpenLoaded("Command7");
  EXPECT_EQ(Shown(kScreen, "Label5"), "Default Printer: Office");
  station_.printer().QueueOutcome(PrintOutcome::kFault);
  Click(kScreen, "Command3", {"OK", "OK"});
  EXPECT_EQ(boxes().back().title, "Not Printed");
  EXPECT_TRUE(Enabled("Command3"));
  EXPECT_EQ(Column(1), "S1 ");
  station_.printer().default_name = "";
  Advance(2s);
  EXPECT_EQ(Shown(kScreen, "Label5"), "Default Printer: ");
}

}  // namespace
}  // namespace quixair::testing
