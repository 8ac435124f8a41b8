#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using simulation::FileAct;

// Chooses a row of a list as a person does.
class TemplateSelection : public StationFixture {
 protected:
  TemplateSelection() {
    for (const char* name : {"GALA.TPP", "MON.TPT", "GALA.TPL", "NIGHT.TPL", "MON.TPD"})
      PutTemplate(name, {});
    AddLibrary(2, 2, 0);  // what the editor wants to open at all
    for (const char* id : {"S1", "S2"}) AddSpot(id, 20000);
  }
  bool EditorOpen() { return IsOpen("BuildTemplate1"); }
  bool DoneEnabled(std::string_view screen) { return Find<Button>(screen, "Done").enabled(); }
};

constexpr const char* kBuild = "BuildTemplate";
constexpr const char* kBuildHint =
    "Select an existing Template to edit, or click 'New Template' to create a new Template.";
constexpr const char* kPick = "PickPlayTemplate";
constexpr const char* kSat = "SatPlayTemplate";
constexpr const char* kPlayHint =
    "Select an Existing Template for Playback by Double Clicking or pressing <Enter>...";

TEST_F(TemplateSelection, Build_OffersCustomFilesAndAllSevenDaysOfItsFamily) {
  StartAt("EditTemplate");
  EXPECT_EQ(station_.FindScreen(kBuild)->title(), "Select Template (Pick-List)");
  EXPECT_EQ(Rows(kBuild, "File1"), std::vector<std::string>{"GALA.TPP"});
  EXPECT_EQ(Rows(kBuild, "List1"), (std::vector<std::string>{"MON.TPT", "TUE.TPT", "WED.TPT", "THU.TPT",
                                                             "FRI.TPT", "SAT.TPT", "SUN.TPT"}));
  EXPECT_EQ(Shown(kBuild, "Text1"), kBuildHint);
  Menu("EditSatTemplate");  // while the other family's is open
  EXPECT_EQ(station_.FindScreen(kBuild)->title(), "Select Template (Satellite/Random)");
  EXPECT_EQ(Rows(kBuild, "File1"), (std::vector<std::string>{"GALA.TPL", "NIGHT.TPL"}));
  EXPECT_EQ(Rows(kBuild, "List1").front(), "MON.TPD");
  EXPECT_EQ(Rows(kBuild, "List1").size(), 7U);
}

TEST_F(TemplateSelection, Build_DoneDoubleClickAndEnterHandTheNameToTheEditor) {
  for (const char* way : {"done", "double", "enter"}) {
    SCOPED_TRACE(way);
    station_.PowerCut();
    std::filesystem::remove(Host("QXAIR/PIKNAME.DTA"));
    PutTemplate("WED.TPT", {});
    StartAt("EditTemplate");
    ListBox& list = Select(kBuild, "List1", "WED.TPT");
    EXPECT_FALSE(EditorOpen());
    if (way == std::string_view("done")) Click(kBuild, "Done");
    if (way == std::string_view("double")) list.DoubleClick();
    if (way == std::string_view("enter")) list.PressEnter();
    EXPECT_EQ(FileText("QXAIR/PIKNAME.DTA"), "\"WED.TPT\"\r\n");
    EXPECT_TRUE(EditorOpen());
    EXPECT_FALSE(station_.FindScreen(kBuild)->visible());
  }
  PutTemplate("NEW.TPP", {});
  Menu("EditTemplate");
  EXPECT_TRUE(station_.FindScreen(kBuild)->visible());
  EXPECT_EQ(Rows(kBuild, "File1").size(), 2U) << "what was saved meanwhile is there";
  EXPECT_FALSE(DoneEnabled(kBuild));
}

TEST_F(TemplateSelection, Build_NameThatCannotBeWritten_IsToldAndNoEditorOpens) {
  StartAt("EditTemplate");
  Select(kBuild, "File1", "GALA.TPP");
  station_.files().Fail(FileAct::kWrite, "*\\PIKNAME.DTA", RunTimeError::kDiskFull);
  Click(kBuild, "Done", {"OK"});
  EXPECT_FALSE(EditorOpen());
  EXPECT_TRUE(station_.FindScreen(kBuild)->visible());
}

TEST_F(TemplateSelection, Build_NewNamesThatAreRefused_AreToldAndAskedForAgain) {
  constexpr const char* kPeriod = "No Extensions Allowed";
  constexpr const char* kBad = "Bad Character in Filename";
  const std::pair<const char*, const char*> cases[] = {
      {"A.TPP", kPeriod}, {".,", kPeriod}, {"a,.", kBad},  {"a/b", kBad},          {"a\\b", kBad},
      {"a#", kBad},       {"%a", kBad},    {"a^", kBad},   {"a*b", kBad},          {"a;b", kBad},
      {"a|b", kBad},      {"a,b", kBad},   {"a\"b", kBad}, {"   ", "No File Name"}};
  StartAt("EditTemplate");
  for (const auto& [typed, title] : cases) {
    SCOPED_TRACE(typed);
    const std::size_t before = boxes().size();
    QueueAnswer(typed);
    Click(kBuild, "NewTemplate", {"OK", ""});
    ASSERT_EQ(boxes().size(), before + 3);
    EXPECT_EQ(boxes()[before + 1].title, title);
    EXPECT_EQ(boxes()[before + 1].style, title == std::string_view(kPeriod) ? 160 : 0);
    EXPECT_EQ(boxes()[before + 2].title, "New Template ID");
    EXPECT_EQ(Shown(kBuild, "Text1"), typed);
  }
  EXPECT_FALSE(EditorOpen());
  EXPECT_FALSE(std::filesystem::exists(Host("QXAIR/PIKNAME.DTA")));
}

TEST_F(TemplateSelection, Build_NewNameGoesToTheEditorWithItsExtension) {
  const struct {
    const char *item, *typed, *name;
  } cases[] = {{"EditTemplate", "Gala Night 2026", "Gala Night 2026.TPP"},
               {"EditSatTemplate", " SPRING", "SPRING.TPL"}};
  for (const auto& [item, typed, name] : cases) {
    SCOPED_TRACE(item);
    StartAt(item);
    const std::size_t before = boxes().size();
    QueueAnswer(typed);
    QueueAnswer("OK");  // to the editor's question whether it is to be a new file
    Click(kBuild, "NewTemplate");
    EXPECT_EQ(boxes().at(before).text,
              "Enter New ID (Do not enter file extension), then 'OK'...\n"
              "[Filename should not exceed 8 digits if DOS playback is desired.]");
    EXPECT_EQ(FileText("QXAIR/PIKNAME.DTA"), "\"" + std::string(name) + "\"\r\n");
    EXPECT_EQ(Shown(kBuild, "Text1"), "Last template: " + std::string(name));
    EXPECT_TRUE(EditorOpen());
    EXPECT_FALSE(std::filesystem::exists(Host("QXTEMPLT") / name)) << "the editor makes it";
  }
}

TEST_F(TemplateSelection, PickPlay_HandsOverTheNameAndOpensPlayback) {
  StartAt("RunTemplate");
  EXPECT_EQ(Rows(kPick, "File1"), std::vector<std::string>{"GALA.TPP"});
  EXPECT_EQ(Rows(kPick, "File2"), std::vector<std::string>{"MON.TPT"});
  EXPECT_EQ(Find<FileListBox>(kPick, "File1").hint(), "All Custom Templates");
  EXPECT_EQ(Find<FileListBox>(kPick, "File2").hint(), "Daily Templates");
  EXPECT_EQ(Shown(kPick, "Text1"), kPlayHint);
  EXPECT_FALSE(DoneEnabled(kPick));
  Select(kPick, "File2", "MON.TPT");
  Select(kPick, "File1", "GALA.TPP");
  EXPECT_EQ(Find<ListBox>(kPick, "File2").selected_index(), -1);
  EXPECT_TRUE(DoneEnabled(kPick));
  Click(kPick, "Done");
  EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"GALA.TPP\"\r\n");
  EXPECT_EQ(FileText("QXAIR/PIKMODE.DTA"), "0\r\n");
  EXPECT_EQ(Shown("PickListForm1", "Label7"), "GALA.TPP");
  EXPECT_FALSE(IsOpen(kPick));
}

TEST_F(TemplateSelection, PickPlay_RefreshReadsTheFolderAnewAndQuitCloses) {
  StartAt("RunTemplate");
  Select(kPick, "File1", "GALA.TPP");
  PutTemplate("NEW.TPP", {});
  Click(kPick, "Refresh");
  EXPECT_EQ(Rows(kPick, "File1"), (std::vector<std::string>{"GALA.TPP", "NEW.TPP"}));
  EXPECT_FALSE(DoneEnabled(kPick)) << "nothing is chosen any more";
  Find<ListBox>(kPick, "File1").PressEnter();
  EXPECT_FALSE(std::filesystem::exists(Host("QXAIR/STOREPIK.DTA")));
  Click(kPick, "Quit");
  EXPECT_FALSE(IsOpen(kPick));
}

TEST_F(TemplateSelection, SatPlay_WritesForTheSiblingProgramsByTheWayOfTheChoice) {
  const struct {
    const char *list, *row, *way, *last_line;
  } cases[] = {{"File1", "GALA.TPL", "done", "0\r\n"},
               {"File2", "MON.TPD", "done", "0\r\n"},
               {"File2", "MON.TPD", "double", "0\r\n"},
               {"File2", "MON.TPD", "enter", "0\r\n"},
               {"File1", "NIGHT.TPL", "double", "\r\n"}};
  StartConsole();
  for (const auto& [list, row, way, last_line] : cases) {
    SCOPED_TRACE(std::string(row) + " by " + way);
    runs_.clear();
    for (const char* name : {"CORRCTON.DTA", "STORESAT.DTA", "SATVER.DTA"})
      std::filesystem::remove(Host("QXAIR") / name);
    Menu("RunSatTemplate");
    ListBox& box = Select(kSat, list, row);
    if (way == std::string_view("done")) Click(kSat, "Done");
    if (way == std::string_view("double")) box.DoubleClick();
    if (way == std::string_view("enter")) box.PressEnter();
    EXPECT_EQ(FileText("QXAIR/CORRCTON.DTA"), "0\r\n");
    EXPECT_EQ(FileText("QXAIR/STORESAT.DTA"), "\"" + std::string(row) + "\"\r\n\"1\"\r\n" + last_line);
    EXPECT_EQ(FileText("QXAIR/SATVER.DTA"), "1\r\n");
    EXPECT_EQ(runs_, std::vector<std::string>{"C:\\QXAIR\\BRKCOUNT.EXE"});
    EXPECT_FALSE(IsOpen(kSat));
  }
}

TEST_F(TemplateSelection, SatPlay_HandOverFails_NothingRunsAndTheNextChoiceRepeatsTheValue) {
  station_.files().Fail(FileAct::kWrite, "*\\SATVER.DTA", RunTimeError::kDiskFull);
  StartAt("RunSatTemplate");
  Select(kSat, "File1", "GALA.TPL");
  Click(kSat, "Done", {"OK"});
  EXPECT_EQ(runs_, std::vector<std::string>{});
  EXPECT_EQ(Shown(kSat, "Text1"), kPlayHint);
  station_.files().Mend();
  Select(kSat, "File1", "NIGHT.TPL").DoubleClick();
  EXPECT_EQ(FileText("QXAIR/STORESAT.DTA"), "\"NIGHT.TPL\"\r\n\"1\"\r\n0\r\n");
  EXPECT_EQ(runs_.size(), 1U);
}

}  // namespace
}  // namespace quixair::testing
