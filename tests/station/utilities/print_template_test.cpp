#include <gmock/gmock.h>

#include "station/templates/template_file.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;

constexpr const char* kScreen = "PrintPickListTemplate";

class PrintTemplateScreen : public StationFixture {
 protected:
  void PutEvents(std::string_view name, const std::vector<TemplateEvent>& events) {
    PutFile("QXTEMPLT/" + std::string(name), FormatTemplate(events));
  }
  void PutSongs(std::string_view name, int count) {
    AddSong("M1", 30500);
    PutTemplate(name, std::vector<std::string>(static_cast<std::size_t>(count), "M1"));
  }
  void OpenLoaded() {
    StartAt("PrintTemplateContents");
    Select(kScreen, "File1", 0);
    Click(kScreen, "Command1");
    Advance(1s);
  }
  void PrintAll() { Click(kScreen, "Command3", {"OK"}); }
  void TypeRange(std::string_view lowest, std::string_view highest) {
    Find<TextBox>(kScreen, "Text2").Edit(std::string(lowest));
    Find<TextBox>(kScreen, "Text3").Edit(std::string(highest));
    Click(kScreen, "Command1", {"OK"});
  }
  const std::vector<PrintedPage>& pages() { return station_.printer().jobs().back().pages; }
  bool Enabled(const char* button) { return Find<Button>(kScreen, button).enabled(); }
};

TEST_F(PrintTemplateScreen, EveryKindOfEvent_PrintsInItsColumns) {
  SetClock("2026-11-22 20:30:00");
  AddSpot("S1042", 95000, "", "", "", "Baker");
  AddSong("M7", 30000, "The Twenty Letter Ar");
  PutEvents("A.TPP", {{"S1042", "frozen"},
                      {">PAUSE<", ""},
                      {"06:30 PM", "****LOCAL BREAK***"},
                      {"07:30 PM", "  ****LOCAL BREAK*"},
                      {"M9", "Gone Song"},
                      {"M7", ""}});
  OpenLoaded();
  EXPECT_EQ(Shown(kScreen, "Text1"), "A.TPP  Has been Loaded...");
  PrintAll();
  ASSERT_EQ(pages().size(), 2U);
  const std::string rule(74, '-');
  EXPECT_THAT(
      pages()[0],
      ElementsAre(std::string(74, '^'), " Quixair    TEMPLATE: A.TPP  Printed on: 11/22/2026    Page: 1",
                  rule, "     File:      Account:            Title:           Len.   (Min.)  Notes:", rule,
                  "1     S1042  Baker            Spot S1042            95      (1.58)",
                  "2     >PAUSE<                                               ()",
                  "3     06:30 PM ****LOCAL BREAK***                           ()",
                  "4     07:30 PM   ****LOCAL BREAK*                           ()",
                  "5     M9     Gone Song                                      ()",
                  "6     M7     The Twenty LetterTitle of M7           30      (0.5)"));
  EXPECT_THAT(std::vector(pages()[1].begin() + 5, pages()[1].end()),
              ElementsAre("", "Total Length of Events 1 through 6 = 125.0 seconds (2.1) min."));
}

TEST_F(PrintTemplateScreen, PagesOfFiftyThree_AndATotalPage) {
  const struct {
    int events;
    std::vector<std::size_t> lines;  // under the head of each page
  } cases[] = {{1, {1, 2}}, {53, {53, 2}}, {54, {53, 1, 2}}};
  for (const auto& each : cases) {
    PutSongs("A.TPP", each.events);
    OpenLoaded();
    PrintAll();
    std::vector<std::size_t> lines;
    for (const PrintedPage& page : pages()) lines.push_back(page.size() - 5);
    EXPECT_EQ(lines, each.lines) << each.events;
    EXPECT_TRUE(pages().back()[1].ends_with("Page: " + std::to_string(each.lines.size())));
  }
}

TEST_F(PrintTemplateScreen, MoreThanAThousandEvents_AreCutOff) {
  PutSongs("A.TPP", 1002);
  OpenLoaded();
  PrintAll();
  EXPECT_EQ(pages().back().back(), "Total Length of Events 1 through 1000 = 30500.0 seconds (508.3) min.");
}

TEST_F(PrintTemplateScreen, Range_ListsTheEventsAndPrintsSome) {
  AddSong("M1", 30000, "The Lanterns");
  AddSong("M2", 60000);
  PutTemplate("A.TPP", {"M1", "M2", "M1", ">TIME<"});
  OpenLoaded();
  Click(kScreen, "Command4");
  EXPECT_FALSE(Find<FileListBox>(kScreen, "File1").visible());
  EXPECT_EQ(Rows(kScreen, "List1")[0], "M1     The Lant  Title of");
  TypeRange("2", "3");
  EXPECT_EQ(pages()[0][5].substr(0, 8), "2     M2");
  EXPECT_EQ(pages()[0].size(), 7U);
  EXPECT_EQ(pages()[1].back(), "Total Length of Events 2 through 3 = 90.0 seconds (1.5) min.");
  EXPECT_TRUE(Find<FileListBox>(kScreen, "File1").visible()) << "another template may be chosen";
}

TEST_F(PrintTemplateScreen, RangeThatIsNone_IsRefusedAndItsBoxEmptied) {
  PutSongs("A.TPP", 4);
  OpenLoaded();
  Click(kScreen, "Command4");
  const char* const low = "'Lowest' Number is Too Low or\nYou Didn't Enter a Valid Character";
  const struct {
    const char *lowest, *highest, *text, *box;
  } cases[] = {{"0", "2", low, "Text2"},
               {"x", "2", low, "Text2"},
               {"5", "9", "'Lowest' Number is Too High", "Text2"},
               {"2", "x", "'Highest' Number is Less Than 'Lowest' Number", "Text3"},
               {"2", "5", "'Highest' Number is Too High", "Text3"}};
  for (const auto& each : cases) {
    TypeRange(each.lowest, each.highest);
    EXPECT_EQ(boxes().back().text, each.text) << each.lowest << " to " << each.highest;
    EXPECT_EQ(Shown(kScreen, each.box), "");
    EXPECT_EQ(station_.FindScreen(kScreen)->focused()->name(), each.box);
  }
  EXPECT_TRUE(station_.printer().jobs().empty());
}

TEST_F(PrintTemplateScreen, ChoiceAndLoading_EnableWhatCanBeDone) {
  PutSongs("A.TPP", 900);
  PutTemplate("MON.TPT", {"M1"});
  StartAt("PrintTemplateContents");
  EXPECT_FALSE(Enabled("Command1"));
  Select(kScreen, "File1", 0);
  EXPECT_TRUE(Enabled("Command1"));
  EXPECT_EQ(Shown(kScreen, "Text1"), "Double Click or Press <Done> to Select Entry");
  Select(kScreen, "File2", 0);
  EXPECT_EQ(Find<FileListBox>(kScreen, "File1").selected_index(), -1);
  Select(kScreen, "File1", 0);
  Find<FileListBox>(kScreen, "File1").DoubleClick();
  Advance(6ms);
  EXPECT_EQ(Shown(kScreen, "Text1"), "Loading A.TPP  500");
  for (const char* button : {"Command1", "Command3", "Command4"}) EXPECT_FALSE(Enabled(button)) << button;
  EXPECT_FALSE(Find<FileListBox>(kScreen, "File1").enabled());
  Advance(1s);
  for (const char* button : {"Command3", "Command4"}) EXPECT_TRUE(Enabled(button)) << button;
}

TEST_F(PrintTemplateScreen, TemplateThatHasGone_IsToldAndTheListsAreReadAnew) {
  PutSongs("A.TPP", 1);
  StartAt("PrintTemplateContents");
  std::filesystem::remove(Host("QXTEMPLT/A.TPP"));
  QueueAnswer("OK");
  Select(kScreen, "File1", 0);
  Find<FileListBox>(kScreen, "File1").PressEnter();
  EXPECT_TRUE(Rows(kScreen, "File1").empty());
  EXPECT_FALSE(Enabled("Command3"));
}

TEST_F(PrintTemplateScreen, SimpleSat_ListsItsOwnTemplates) {
  for (const char* name : {"A.TPP", "B.TPL", "MON.TPT", "TUE.TPD"}) PutTemplate(name, {});
  StartAt("PrintSatTemplate");
  EXPECT_EQ(station_.FindScreen("PrintSatTemplateMDI")->title(), "Print Template (Simple-Sat)");
  EXPECT_THAT(Rows("PrintSatTemplateMDI", "File1"), ElementsAre("B.TPL"));
  EXPECT_THAT(Rows("PrintSatTemplateMDI", "File2"), ElementsAre("TUE.TPD"));
}

}  // namespace
}  // namespace quixair::testing
