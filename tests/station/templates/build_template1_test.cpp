#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kEditor = "BuildTemplate1";

class TemplateEditorScreen : public StationFixture {
 protected:
  TemplateEditorScreen() {
    AddLibrary(4, 2, 2, 30500);
    for (const char* id : {"S1", "S2", "S3"}) AddSpot(id, 20000, "A", "01-01-26", "12-24-26", "Baker");
  }

  void OpenEditor(std::string_view pik_mode, std::string_view name = "A.TPP") {
    PutFile("QXAIR/PIKMODE.DTA", "\"" + std::string(pik_mode) + "\"\r\n");
    PutFile("QXAIR/PIKNAME.DTA", "\"" + std::string(name) + "\"\r\n");
    StartConsole();
    station_.Do([this] { station_.platform().screens.Open(kEditor); });
  }
  void OpenWith(const std::vector<std::string>& ids, std::string_view pik_mode = "0") {
    PutTemplate("A.TPP", ids);
    OpenEditor(pik_mode);
  }
  /// Double clicks the library row that begins with the id.
  void Add(std::string_view list_name, std::string_view id) {
    auto& list = Find<ListBox>(kEditor, list_name);
    for (int row = 0; row < list.row_count(); ++row) {
      if (!list.row(row).starts_with(std::string(id) + ' ')) continue;
      list.PersonSelects({row});
      list.DoubleClick();
      return;
    }
    ADD_FAILURE() << "not listed: " << id;
  }
  void DoubleClickEntry(int row) {
    Select(kEditor, "List2", row);
    Find<ListBox>(kEditor, "List2").DoubleClick();
  }
  void Save() { Click(kEditor, "Command1", {"OK"}); }
  std::string Entry(int row) { return Rows(kEditor, "List2").at(static_cast<std::size_t>(row)); }
  std::string Ids() {
    std::string ids;
    for (const std::string& row : Rows(kEditor, "List2")) ids += row.substr(6, row.find(' ', 6) - 6) + ' ';
    return ids;
  }
  /// What is waited for, in yellow.
  std::string Prompt() {
    const bool yellow = Find<TextBox>(kEditor, "Text3").back_color() == kYellow;
    return yellow ? Shown(kEditor, "Text3") : "";
  }
  bool Enabled(const char* button) { return Find<Button>(kEditor, button).enabled(); }
};

TEST_F(TemplateEditorScreen, Modes_SetTitlesAndButtons) {
  PutTemplate("A.TPP", {"M0001"});
  const struct {
    const char *mode, *title, *label, *first_button;
    bool local_break, pause, manual;
  } cases[] = {
      {"0", "Pick-List Playback Select", "Template in Use: A.TPP", "&Save", false, true, true},
      {"1", "Pick-List Playback Select", "IMMEDIATE Playback", "&Play", false, true, true},
      {"2", "Simple-Sat Playback Select", "Template in Use: A.TPP", "&Save", true, false, true},
      {"3", "Random Spot/PSA Rotation File", "Template in Use: A.TPP", "&Save", false, false, true},
      {"4", "On-Air Assist", "ON-AIR ASSIST", "&Play", false, true, false},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.mode);
    OpenEditor(expected.mode);
    EXPECT_EQ(station_.FindScreen(kEditor)->title(), expected.title);
    EXPECT_EQ(Shown(kEditor, "Label2"), expected.label);
    EXPECT_EQ(Shown(kEditor, "Command1"), expected.first_button);
    EXPECT_EQ(Enabled("localbreak"), expected.local_break);
    EXPECT_EQ(Enabled("Command4"), expected.pause);
    EXPECT_EQ(Enabled("Command6"), expected.manual);
    EXPECT_EQ(Find<TextBox>(kEditor, "Text8").visible(), expected.mode == std::string_view("4"));
    EXPECT_TRUE(Find<ListBox>(kEditor, "List3").visible());
    EXPECT_FALSE(Find<ListBox>(kEditor, "List1").visible());
    station_.PowerCut();
  }
}

TEST_F(TemplateEditorScreen, LibraryLists_ShowTheirColumnsAndCounts) {
  OpenWith({"M0001"});
  EXPECT_EQ(Shown(kEditor, "Text3"),
            "3 Spot Files Present / 4 Music Files Present / 4 Liner Files Present...");
  const std::vector<std::string> spots = Rows(kEditor, "List3");
  ASSERT_EQ(spots.size(), 3U);
  EXPECT_EQ(spots[0].substr(2, 64),
            "      Baker          Spot S" + spots[0].substr(1, 1) + "        20     01-01-26 12-24-26 A A");
  EXPECT_EQ(spots[0].substr(spots[0].size() - 4), "   1");
  Click(kEditor, "Command11");
  EXPECT_EQ(Shown(kEditor, "FilesLabel"), "Existing Files:  [Music]");
  EXPECT_EQ(Shown(kEditor, "Text3"), "4 Music Files Present");
  EXPECT_FALSE(Enabled("Command11"));
  EXPECT_TRUE(Enabled("Command10"));
}

TEST_F(TemplateEditorScreen, SmallLibrary_TellsEachKindAndClosesTheScreen) {
  for (const char* id : {"S2", "S3", "M0002", "M0003", "M0004", "L0001", "L0002", "LL001", "LL002"})
    std::filesystem::remove(Host("QXDATA/" + std::string(id) + ".DAT"));
  for (int i = 0; i < 3; ++i) QueueAnswer("OK");
  OpenEditor("1");
  ASSERT_EQ(boxes().size(), 3U);
  EXPECT_EQ(boxes()[0].title, "Not Enough Music!");
  EXPECT_EQ(boxes()[1].title, "Not Enough Spots!");
  EXPECT_EQ(boxes()[1].text,
            "You must record at least two spot files before\nusing this module. Please make at least two\n"
            "spot recordings and then try again...");
  EXPECT_EQ(boxes()[2].title, "Not Enough Liners!");
  EXPECT_FALSE(IsOpen(kEditor));
}

TEST_F(TemplateEditorScreen, LargeLibrary_LoadsInPortionsWhileTheRestWaits) {
  AddLibrary(300, 2, 2);
  PutTemplate("A.TPP", {"M0001", "M0002"});
  OpenEditor("2");
  EXPECT_EQ(Shown(kEditor, "Text3"), "250 Music Files Present");
  EXPECT_TRUE(Rows(kEditor, "List2").empty());
  for (const char* waiting : {"Command1", "Command2", "Command6", "Command11", "localbreak"})
    EXPECT_FALSE(Enabled(waiting)) << waiting;
  EXPECT_FALSE(Find<ListBox>(kEditor, "List3").enabled());
  EXPECT_TRUE(Enabled("Command9"));
  Advance(1s);
  EXPECT_EQ(Shown(kEditor, "Text3"),
            "3 Spot Files Present / 300 Music Files Present / 4 Liner Files Present...");
  EXPECT_EQ(Ids(), "M0001 M0002 ");
  EXPECT_EQ(Rows(kEditor, "List1").size(), 300U);
  EXPECT_TRUE(Enabled("Command1"));
  EXPECT_TRUE(Enabled("localbreak"));
  EXPECT_FALSE(Enabled("Command4")) << "what its mode does not offer stays off";
}

TEST_F(TemplateEditorScreen, QuitWhileLoading_ClosesAtOnce) {
  AddLibrary(300, 2, 2);
  OpenWith({"M0001"});
  Click(kEditor, "Command9");
  EXPECT_FALSE(IsOpen(kEditor));
  Advance(1s);
  EXPECT_TRUE(boxes().empty());
}

TEST_F(TemplateEditorScreen, TemplateBuiltAndSaved_LoadsAndSavesUnchanged) {
  QueueAnswer("OK");
  OpenEditor("0", "NEW.TPP");
  EXPECT_EQ(boxes().back().title, "File Not Found");
  Add("List3", "S2");
  Click(kEditor, "Command4");
  Click(kEditor, "Command11");
  Add("List1", "M0003");
  Click(kEditor, "Command5");
  EXPECT_EQ(Shown(kEditor, "Text1"), "Total Time: 50.5 sec. (.841 min.)");
  EXPECT_EQ(Shown(kEditor, "Text3"), "Total Entries = 4");
  EXPECT_FALSE(std::filesystem::exists(Host("QXTEMPLT/NEW.TPP"))) << "written by Save alone";
  Save();
  const std::string saved =
      "\"S2\",\"Spot S2\"\r\n\">PAUSE<\",\"\"\r\n\"M0003\",\"Title of "
      "M0003\"\r\n\">TIME<\",\"\"\r\n\"\",\"\"\r\n";
  EXPECT_EQ(FileText("QXTEMPLT/NEW.TPP"), saved);
  Click(kEditor, "Command9");
  EXPECT_FALSE(IsOpen(kEditor)) << "nothing to ask after a save";
  OpenEditor("0", "NEW.TPP");
  EXPECT_EQ(Entry(0), "0001  S2       Baker                Spot S2              20     ");
  Click(kEditor, "Command1", {"Cancel"});
  EXPECT_EQ(FileText("QXTEMPLT/NEW.TPP"), saved) << "Cancel does not stop the save";
}

TEST_F(TemplateEditorScreen, Insertion_OpensAPlaceAndHoldsEverythingElseOff) {
  OpenWith({"M0001", "M0002", "M0003"});
  Click(kEditor, "Command2");
  EXPECT_FALSE(Find<ListBox>(kEditor, "List1").enabled());
  EXPECT_EQ(Prompt(), "Double Click Point in Template Entries List at which to Insert");
  DoubleClickEntry(1);
  EXPECT_EQ(Entry(1), "0002    >> O P E N <<");
  EXPECT_EQ(Entry(2).substr(0, 11), "0003  M0002");
  for (const auto& [button, title] :
       {std::pair("Command1", "Can't Save while Inserting"), std::pair("Command2", "Can't Insert Now"),
        std::pair("Command3", "Can't cut while Inserting"),
        std::pair("Command9", "Can't Quit while Inserting")}) {
    Click(kEditor, button, {"OK"});
    EXPECT_EQ(boxes().back().title, title);
  }
  QueueAnswer("OK");
  DoubleClickEntry(0);
  EXPECT_EQ(boxes().back().title, "Wrong List");
  Add("List3", "S1");
  EXPECT_EQ(Ids(), "M0001 S1 M0002 M0003 ");
  EXPECT_EQ(Shown(kEditor, "Text2"), "The >>OPEN<< at 2 has been filled...");
  EXPECT_EQ(Prompt(), "");
  Click(kEditor, "Command2");
  DoubleClickEntry(0);
  Click(kEditor, "Command5");
  EXPECT_EQ(Ids(), ">TIME< M0001 S1 M0002 M0003 ");
}

TEST_F(TemplateEditorScreen, EventChosenBeforeItsPlace_WaitsForThePlace) {
  OpenWith({"M0001", "M0002"}, "2");
  Click(kEditor, "Command6");
  Click(kEditor, "Command2");
  const std::function<void()> ways[] = {[this] { Add("List3", "S1"); },
                                        [this] { Click(kEditor, "Command5"); },
                                        [this] {
                                          Find<TextBox>(kEditor, "Text8").Edit("S1");
                                          Find<TextBox>(kEditor, "Text8").PressEnter();
                                        },
                                        [this] {
                                          Click(kEditor, "localbreak");
                                          Select(kEditor, "List7", 5);
                                          Select(kEditor, "List8", 30);
                                          Find<OptionButton>(kEditor, "Option2").PersonSelects();
                                          Click(kEditor, "Command16");
                                        }};
  for (const auto& choose : ways) {
    choose();
    EXPECT_EQ(Ids(), "M0001 M0002 ");
    EXPECT_EQ(Shown(kEditor, "Text1"), "Total Time: 61.0 sec. (1.01 min.)");
    EXPECT_EQ(Shown(kEditor, "Text3"), "Double Click Point in Template Entries List at which to Insert");
  }
  DoubleClickEntry(1);
  Add("List3", "S1");
  EXPECT_EQ(Ids(), "M0001 S1 M0002 ");
  Click(kEditor, "Command2");
  Add("List3", "S2");
  EXPECT_EQ(Ids(), "M0001 S2 M0002 ") << "the place of the insertion before is taken";
}

TEST_F(TemplateEditorScreen, InsertionIntoTooFewEntries_IsRefused) {
  OpenWith({"M0001"});
  Click(kEditor, "Command2", {"OK"});
  EXPECT_EQ(boxes().back().text, "Not enough entries to do an insert!");
}

TEST_F(TemplateEditorScreen, Cut_RemovesTheRowChosenAndAsksNothingOnQuit) {
  OpenWith({"M0001", "S1", "M0002"});
  Click(kEditor, "Command3");
  Find<ListBox>(kEditor, "List2").DoubleClick();
  EXPECT_EQ(Rows(kEditor, "List2").size(), 3U) << "nothing selected: still armed";
  DoubleClickEntry(1);
  EXPECT_EQ(Ids(), "M0001 M0002 ");
  EXPECT_EQ(Shown(kEditor, "Text3"), "Quixair Template Editor");
  EXPECT_EQ(Shown(kEditor, "Text2"), "Item 2 was successfully removed...");
  EXPECT_EQ(Shown(kEditor, "Text1"), "Total Time: 61.0 sec. (1.01 min.)");
  DoubleClickEntry(0);
  EXPECT_EQ(Ids(), "M0001 M0002 ") << "one cut for one press";
  Click(kEditor, "Command9");
  EXPECT_FALSE(IsOpen(kEditor));
}

TEST_F(TemplateEditorScreen, QuitAfterAdding_AsksAndObeys) {
  const std::string before = "\"M0001\",\"Title\"\r\n\"\",\"\"\r\n";
  for (const char* answer : {"Cancel", "No", "Yes"}) {
    OpenWith({"M0001"});
    Add("List3", "S1");
    QueueAnswer(answer);
    station_.Do([this] { station_.FindScreen(kEditor)->CloseWindow(); });
    EXPECT_EQ(boxes().back().title, "Save Changes?");
    EXPECT_EQ(IsOpen(kEditor), answer == std::string_view("Cancel"));
    EXPECT_EQ(FileText("QXTEMPLT/A.TPP") != before, answer == std::string_view("Yes")) << answer;
    station_.PowerCut();
  }
}

TEST_F(TemplateEditorScreen, AnotherTemplateChosenWhileOpen_IsTakenAfterTheQuestion) {
  const auto choose = [this](const char* name) {
    Menu("EditTemplate");
    Select("BuildTemplate", "File1", name).DoubleClick();
    Advance(1s);
  };
  PutTemplate("B.TPP", {"M0003"});
  OpenWith({"M0001"});
  Add("List3", "S1");
  choose("A.TPP");
  EXPECT_EQ(Ids(), "M0001 S1 ") << "it is that one already";
  for (const char* answer : {"Cancel", "No"}) {
    QueueAnswer(answer);
    choose("B.TPP");
    EXPECT_EQ(boxes().back().title, "Save Changes?");
    EXPECT_EQ(Ids(), answer == std::string_view("No") ? "M0003 " : "M0001 S1 ");
  }
  EXPECT_EQ(Shown(kEditor, "Label2"), "Template in Use: B.TPP");
  Add("List3", "S2");
  QueueAnswer("Yes");
  Menu("ImmediatePickList");
  Advance(1s);
  EXPECT_EQ(FileText("QXTEMPLT/B.TPP"),
            "\"M0003\",\"Title of M0003\"\r\n\"S2\",\"Spot S2\"\r\n\"\",\"\"\r\n");
  EXPECT_EQ(Shown(kEditor, "Command1"), "&Play");
  Add("List3", "S1");
  QueueAnswer("No");
  choose("A.TPP");
  EXPECT_EQ(boxes().back().title, "List Not Played");
  EXPECT_EQ(Ids(), "S1 ");
  Click(kEditor, "Command1");
  EXPECT_EQ(Rows("PickListForm1", "List1"), std::vector<std::string>{"1 S1 Spot S1"}) << "and no template";
  Menu("ImmediatePickList");
  Add("List3", "S2");
  Add("List3", "S3");
  Click(kEditor, "Command1");
  EXPECT_EQ(Rows("PickListForm1", "List1").size(), 2U) << "a screen that waits for Start takes the new list";
}

TEST_F(TemplateEditorScreen, LocalBreaks_AreComposedAndKeepTheirTwoForms) {
  OpenWith({"S1", "S2"}, "2");
  Click(kEditor, "localbreak");
  Click(kEditor, "Command16");
  EXPECT_EQ(Shown(kEditor, "Text3"), "Select an Hour, Minute, and AM or PM - Then <ACCEPT>.");
  Click(kEditor, "Command17");
  Click(kEditor, "Command5");
  EXPECT_EQ(Prompt(), "") << "nothing waits any more";
  Click(kEditor, "localbreak");
  Select(kEditor, "List7", 5);
  Select(kEditor, "List8", 30);
  Click(kEditor, "Command16");
  EXPECT_EQ(Shown(kEditor, "Text3"), "You did not select AM or PM.  This is required");
  Find<OptionButton>(kEditor, "Option2").PersonSelects();
  EXPECT_EQ(Shown(kEditor, "Text9"), "06:30 PM");
  Click(kEditor, "Command16");
  EXPECT_EQ(Shown(kEditor, "Text3"), "Local Break Added at Position 4: 06:30 PM ****LOCAL BREAK***");
  Click(kEditor, "Command2");
  DoubleClickEntry(0);
  Click(kEditor, "Command6");
  Click(kEditor, "Command15");
  EXPECT_EQ(Prompt(), "Now, Select an entry for Position 1") << "still waits";
  Click(kEditor, "Command16");
  Save();
  EXPECT_EQ(FileText("QXTEMPLT/A.TPP"),
            "\"06:30 PM\",\"  ****LOCAL BREAK*\"\r\n\"S1\",\"Spot S1\"\r\n\"S2\",\"Spot S2\"\r\n"
            "\">TIME<\",\"\"\r\n\"06:30 PM\",\"****LOCAL BREAK***\"\r\n\"\",\"\"\r\n");
}

TEST_F(TemplateEditorScreen, ManualEntry_TakesTheIdOfTheDataFile) {
  PutFile("QXDATA/OTHER.DAT", FileText("QXDATA/M0002.DAT"));
  OpenWith({"M0001"});
  Click(kEditor, "Command6");
  auto& box = Find<TextBox>(kEditor, "Text8");
  for (const char* typed : {"NOSUCH", "other"}) {
    box.Edit(typed);
    box.PressEnter();
    EXPECT_EQ(box.text(), "");
  }
  EXPECT_EQ(Ids(), "M0001 M0002 ");
  PutFile("QXDATA/TORN.DAT", "\"20\"\r\n\"TORN\"\r\n");
  box.Edit("torn");
  QueueAnswer("OK");
  box.PressEnter();
  EXPECT_EQ(boxes().back().title, "Unexpected Error 62");
  EXPECT_EQ(Ids(), "M0001 M0002 ");
  Click(kEditor, "Command9");
  EXPECT_FALSE(IsOpen(kEditor)) << "manual entries are not asked about";
}

TEST_F(TemplateEditorScreen, RangeTotal_ComparesNumbersAsTexts) {
  OpenWith({"S1", "S2", "M0001", "S3"});
  Advance(1s);
  Click(kEditor, "Command13");
  Select(kEditor, "List5", 2);
  EXPECT_EQ(Shown(kEditor, "Text3"),
            "Range Calculator:   Now, select an ending event Number from the 'To' Box");
  Select(kEditor, "List6", 0);
  EXPECT_EQ(Shown(kEditor, "Text5"), "70.5  Seconds");
  EXPECT_EQ(Shown(kEditor, "Text6"), "1.2  Minutes");
  Select(kEditor, "List6", 1000);
  EXPECT_EQ(Find<ListBox>(kEditor, "List6").selected_text(), "04") << "no further than there are events";
  EXPECT_EQ(Shown(kEditor, "Text5"), "50.5  Seconds");
  for (int i = 0; i < 98; ++i) Click(kEditor, "Command5");
  Select(kEditor, "List5", 98);
  Select(kEditor, "List6", 99);
  EXPECT_EQ(Shown(kEditor, "Text5"), "20.0  Seconds");
  Select(kEditor, "List6", 99);
  EXPECT_EQ(Shown(kEditor, "Text5"), "20.0  Seconds") << "from 100 to 99: no event, so nothing is said";
}

TEST_F(TemplateEditorScreen, Clear_AsksTwiceAndKeepsTheTotal) {
  OpenWith({"S1", "S2"});
  Click(kEditor, "Command7", {"OK", "Cancel"});
  EXPECT_EQ(boxes().back().title, "Last Chance!");
  EXPECT_EQ(Rows(kEditor, "List2").size(), 2U);
  Click(kEditor, "Command7", {"OK", "OK"});
  EXPECT_TRUE(Rows(kEditor, "List2").empty());
  EXPECT_EQ(Shown(kEditor, "Text1"), "Total Time: 40.0 sec. (.666 min.)");
  Save();
  EXPECT_EQ(FileText("QXTEMPLT/A.TPP"), "\"\",\"\"\r\n");
}

TEST_F(TemplateEditorScreen, DamagedTemplates_AreToldAndNothingIsLost) {
  const struct {
    const char *content, *box, *ids;
  } cases[] = {
      {"\"S1\",\"x\"\r\n\"S2\",\"x\"\r\n", "Possible Data Corruption", "S1 "},
      {"\"S1\",\"x\"\r\n\"S2\"", "Possible Data Corruption", "S1 "},
      {"\"S1\",\"x\"\n\"S2\",\"x\"\n\"\",\"\"\n", nullptr, "S1 S2 "},
      {"\"SGONE\",\"x\"\r\n\"S2\",\"x\"\r\n\"\",\"\"\r\n", "SGONE.DAT is Missing", "SGONE S2 "},
  };
  for (const auto& damaged : cases) {
    SCOPED_TRACE(damaged.content);
    PutFile("QXTEMPLT/A.TPP", damaged.content);
    if (damaged.box != nullptr) QueueAnswer("OK");
    OpenEditor("0");
    if (damaged.box != nullptr) {
      EXPECT_EQ(boxes().back().title, damaged.box);
    }
    EXPECT_EQ(Ids(), damaged.ids);
    EXPECT_EQ(FileText("QXTEMPLT/A.TPP"), damaged.content);
    station_.PowerCut();
  }
  PutFile("QXTEMPLT/A.TPP", "\"SGONE\",\"x\"\r\n\"\",\"\"\r\n");
  QueueAnswer("OK");
  OpenEditor("0");
  Save();
  EXPECT_EQ(FileText("QXTEMPLT/A.TPP"), "\"SGONE\",\"EMPTY!\"\r\n\"\",\"\"\r\n");
}

TEST_F(TemplateEditorScreen, SaveThatFails_KeepsTheScreen) {
  OpenWith({"M0001"});
  Add("List3", "S1");
  station_.files().Fail(simulation::FileAct::kWrite, "*", RunTimeError::kDiskFull);
  Click(kEditor, "Command9", {"Yes", "OK"});
  EXPECT_TRUE(IsOpen(kEditor));
  EXPECT_EQ(Ids(), "M0001 S1 ");
}

TEST_F(TemplateEditorScreen, ImmediateAndAssist_GoToTheAirAndBack) {
  for (const char* mode : {"1", "4"}) {
    ForgetAired();
    OpenEditor(mode);
    Add("List3", "S1");
    Add("List3", "S2");
    Click(kEditor, "Command1");
    EXPECT_EQ(FileText("QXAIR/PICKLIST.DTA"), "\"S1\"\r\n\"S2\"\r\n\"\"\r\n");
    EXPECT_FALSE(IsOpen(kEditor));
    Click("PickListForm1", "Start");
    Advance(45s);
    EXPECT_EQ(AiredIds(), (std::vector<std::string>{"S1", "S2"}));
    EXPECT_FALSE(IsOpen("PickListForm1"));
    EXPECT_EQ(IsOpen(kEditor), std::string_view(mode) == "4");
    station_.PowerCut();
  }
}

TEST_F(TemplateEditorScreen, OnAirAssist_GoesBackToTheManualBox) {
  OpenEditor("4");
  const auto focused = [this] { return station_.FindScreen(kEditor)->focused()->name(); };
  EXPECT_EQ(focused(), "Text8");
  Click(kEditor, "Command11");
  EXPECT_EQ(focused(), "Text8");
  Find<ListBox>(kEditor, "List1").SetFocus();
  Add("List1", "M0001");
  EXPECT_EQ(focused(), "Text8");
  Find<ListBox>(kEditor, "List1").SetFocus();
  Menu("OnAirAssist");
  EXPECT_EQ(focused(), "Text8");
  Click(kEditor, "Command15");
  EXPECT_FALSE(Find<TextBox>(kEditor, "Text8").visible());
  Click(kEditor, "Command6");
  EXPECT_TRUE(Find<TextBox>(kEditor, "Text8").visible()) << "what was hidden can be shown again";
}

TEST_F(TemplateEditorScreen, ListPlayedWhileAnotherIsOnTheAir_IsKeptAndNothingIsHandedOver) {
  PutTemplate("A.TPP", {"S1", "S2"});
  StartAt("RunTemplate");
  Select("PickPlayTemplate", "File1", "A.TPP").DoubleClick();
  Click("PickListForm1", "Start");
  Menu("OnAirAssist");
  Add("List3", "S3");
  const std::string mode = FileText("QXAIR/PIKMODE.DTA");
  Click(kEditor, "Command1", {"OK"});
  EXPECT_EQ(boxes().back().title, "Pick-List Playback");
  EXPECT_EQ(Ids(), "S3 ");
  EXPECT_FALSE(std::filesystem::exists(Host("QXAIR/PICKLIST.DTA")));
  PutTemplate("B.TPP", {"S3"});
  Menu("RunTemplate");
  QueueAnswer("OK");
  Select("PickPlayTemplate", "File1", "B.TPP").DoubleClick();
  EXPECT_EQ(FileText("QXAIR/STOREPIK.DTA"), "\"A.TPP\"\r\n");
  EXPECT_EQ(FileText("QXAIR/PIKMODE.DTA"), mode);
  Advance(25s);
  EXPECT_EQ(AiredIds(), (std::vector<std::string>{"S1", "S2"})) << "the run goes on";
  Advance(30s);
  Click(kEditor, "Command1");
  Click("PickListForm1", "Start");
  EXPECT_EQ(AiredIds().back(), "S3");
}

TEST_F(TemplateEditorScreen, FullTemplate_ReplacesItsLastEvent) {
  OpenWith(std::vector<std::string>(1999, "S1"));
  Advance(1s);
  QueueAnswer("OK");
  Add("List3", "S2");
  EXPECT_EQ(boxes().back().title, "Maximum Entries Reached");
  EXPECT_EQ(Rows(kEditor, "List2").size(), 1999U);
  EXPECT_EQ(Entry(1998).substr(0, 8), "1999  S2");
  EXPECT_EQ(Shown(kEditor, "Text1").substr(0, 19), "Total Time: 40000.0")
      << "the replaced one's seconds stay";
}

}  // namespace
}  // namespace quixair::testing
