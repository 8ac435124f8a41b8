#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kErase = "EraseUtility";

// A station with one song, spot and liner of each kind that erasing meets.
class EraseRecordings : public StationFixture {
 protected:
  EraseRecordings() {
    AddLibrary(3, 2, 0);
    for (const char* id : {"S1", "S2"}) AddSpot(id, 20000, "P", "01-01-26", "12-24-26", "Baker");
  }

  void Open() { StartAt("EraseRecordings"); }
  void Add(std::string_view id) {
    Click(kErase, "Command6");
    Find<TextBox>(kErase, "Text8").Edit(std::string(id));
    Find<TextBox>(kErase, "Text8").PressEnter();
    Click(kErase, "Command15");
  }
  void EraseList(const std::vector<std::string>& answers) {
    shown_before_ = boxes().size();
    for (const std::string& answer : answers) QueueAnswer(answer);
    Click(kErase, "Command1");
  }
  /// Titles of the boxes since EraseList began.
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    for (std::size_t i = shown_before_; i < boxes().size(); ++i) titles.push_back(boxes()[i].title);
    return titles;
  }
  /// "DWM": which of the data file, the .WAV and the .MP3 are there.
  std::string Left(const std::string& id) {
    std::string left;
    if (std::filesystem::exists(Host("QXDATA/" + id + ".DAT"))) left += 'D';
    if (std::filesystem::exists(Host("QXWAVE/" + id + ".wav"))) left += 'W';
    if (std::filesystem::exists(Host("QXWAVE/" + id + ".mp3"))) left += 'M';
    return left;
  }
  void PutOnDrive(const std::string& id, std::string_view drive) {
    PutFile("QXDATA/" + id + ".DAT", "\"20\"\r\n\"" + id + "\"\r\n\"" + std::string(drive) +
                                         "\"\r\n\"Artist\"\r\n\"Title\"\r\n\"A\"\r\n\"\"\r\n\"2026\"\r\n");
  }

  std::size_t shown_before_ = 0;
  const std::string kSure = "Erase RECORDINGS ";
  const std::string kNoAudio = "No Audio File Not Found in C:\\QXWAVE";
};

TEST_F(EraseRecordings, Opening_ShowsTheLibraryWithItsDrives) {
  Open();
  EXPECT_EQ(station_.FindScreen(kErase)->title(), "ERASE Recordings");
  EXPECT_EQ(Shown(kErase, "Text3"),
            "2 Spot Files Present / 3 Music Files Present / 2 Liner Files Present...");
  const struct {
    const char *button, *list, *heading;
  } cases[] = {
      {"Command11", "List1", " I.D.       Artist                 Title            Len   From Yr. Dr"},
      {"Command12", "List4", " I.D.     Description     Announcer Type     Len      Start    Kill   Dr"},
      {"Command10", "List3", " I.D.     Account         Title            Len    Start    Kill   P A Dr"}};
  for (const auto& kind : cases) {
    SCOPED_TRACE(kind.list);
    Click(kErase, kind.button);
    EXPECT_EQ(Shown(kErase, "ColumnsLabel"), kind.heading);
    const std::size_t column = std::string(kind.heading).rfind("Dr");
    for (const std::string& row : Rows(kErase, kind.list))
      EXPECT_EQ(row.substr(column - 1, 3), " C ") << "the drive stands below its heading: " << row;
  }
}

TEST_F(EraseRecordings, AskedForAgain_ListsWhatCameMeanwhileUnlessSomethingIsChosen) {
  Open();
  AddSpot("S3", 20000);
  Menu("EraseRecordings");
  EXPECT_EQ(Rows(kErase, "List3").size(), 3U);
  Add("S1");
  AddSpot("S4", 20000);
  Menu("EraseRecordings");
  EXPECT_EQ(Rows(kErase, "List3").size(), 3U);
  EXPECT_EQ(Rows(kErase, "List2").size(), 1U);
}

TEST_F(EraseRecordings, EmptyKinds_AreToldAndRefuseNothing) {
  for (const char* id : {"M0001", "M0002", "M0003"})
    std::filesystem::remove(Host("QXDATA/" + std::string(id) + ".DAT"));
  Open();
  EXPECT_EQ(Shown(kErase, "Text3"), "NO MUSIC FILES FOUND");
  EXPECT_EQ(Rows(kErase, "List3").size(), 2U);
}

TEST_F(EraseRecordings, List_EntersTheRowWithItsDriveAndCutsIt) {
  Open();
  Click(kErase, "Command3", {"OK"});
  EXPECT_EQ(boxes().back().text,
            "Too few entries to do cutting!  You can only \n"
            "cut previously selected entries in the top box...");
  auto& spots = Find<ListBox>(kErase, "List3");
  spots.PersonSelects({0});
  const std::string id = spots.selected_text().substr(0, 2);
  spots.DoubleClick();
  Add("M0002");
  EXPECT_EQ(Rows(kErase, "List2"),
            (std::vector<std::string>{
                "0001  " + id + "       Baker                Spot " + id + "              20        C",
                "0002  M0002    Artist               Title of M0002       10        C"}));
  EXPECT_EQ(Shown(kErase, "Text1"), "Total Time: 30.0 sec. (.5 min.)");
  Click(kErase, "Command3");
  Select(kErase, "List2", 0);
  Find<ListBox>(kErase, "List2").DoubleClick();
  EXPECT_EQ(Rows(kErase, "List2").at(0).substr(0, 11), "0001  M0002");
  EXPECT_EQ(Shown(kErase, "Text3"), "Quixair Recording Eraser");
}

TEST_F(EraseRecordings, Erase_DeletesDataAndAudioAndListsTheLibraryAnew) {
  AddAudio("M0001", 10000, ".mp3");
  Open();
  Click(kErase, "Command11");
  for (const char* id : {"M0001", "S2", "L0001"}) Add(id);
  EraseList({"Cancel"});
  EXPECT_EQ(Left("M0001"), "DWM") << "nothing before the question is answered";
  EraseList({"OK"});
  EXPECT_EQ(Titles(), std::vector<std::string>{kSure});
  for (const char* id : {"M0001", "S2", "L0001"}) EXPECT_EQ(Left(id), "") << id;
  for (const char* id : {"M0002", "S1", "L0002"}) EXPECT_EQ(Left(id), "DW") << id;
  EXPECT_EQ(Shown(kErase, "Text2"), "Done..");
  EXPECT_EQ(Shown(kErase, "Text3"),
            "1 Spot Files Present / 2 Music Files Present / 1 Liner Files Present...");
  EXPECT_TRUE(Rows(kErase, "List2").empty());
  EXPECT_EQ(Rows(kErase, "List1").size(), 2U);
  EXPECT_TRUE(Find<ListBox>(kErase, "List1").visible()) << "the kind shown before";
  for (const char* button : {"Command10", "Command11", "Command12"})
    EXPECT_EQ(Find<Button>(kErase, button).enabled(), button != std::string_view("Command11")) << button;
  Click(kErase, "Command9");
  EXPECT_FALSE(IsOpen(kErase)) << "nothing is listed any more";
}

TEST_F(EraseRecordings, AskBeforeEach_RefusedRecordingStaysWhole) {
  Open();
  EXPECT_FALSE(Find<CheckBox>(kErase, "Check1").ticked());
  Find<CheckBox>(kErase, "Check1").PersonTicks(true);
  EXPECT_EQ(FileText("QXAIR/DELASK.DTA"), "1\r\n");
  Open();
  EXPECT_TRUE(Find<CheckBox>(kErase, "Check1").ticked()) << "as it was left";
  for (const char* id : {"M0001", "M0002", "M0003"}) Add(id);
  EraseList({"OK", "Yes", "No", "Yes"});
  EXPECT_EQ(boxes().at(shown_before_ + 2).text, "Erase M0002 ?");
  EXPECT_EQ(Left("M0001"), "");
  EXPECT_EQ(Left("M0002"), "DW");
  EXPECT_EQ(Left("M0003"), "");
  Find<CheckBox>(kErase, "Check1").PersonTicks(false);
  EXPECT_EQ(FileText("QXAIR/DELASK.DTA"), "0\r\n");
}

// Each fault is told, and the erasure goes on with its next statement.
TEST_F(EraseRecordings, Faults_AreToldAndTheRestIsErased) {
  const struct {
    const char* what;
    std::function<void()> prepare;
    std::vector<std::string> list;
    std::vector<std::string> titles;
  } cases[] = {
      {"audio missing", [this] { std::filesystem::remove(Host("QXWAVE/M0001.wav")); }, {"M0001"}, {kNoAudio}},
      {"listed twice", [] {}, {"M0001", "M0001"}, {kNoAudio, kNoAudio}},
      {"drive gone",
       [this] { PutOnDrive("M0001", "D"); },
       {"M0001"},
       {"Unexpected Error: 71", "No Audio File Not Found in D:\\QXWAVE"}},
      {"audio folder gone",
       [this] {
         std::filesystem::create_directories(Host("../D"));
         PutOnDrive("M0001", "D");
       },
       {"M0001"},
       {"No Audio File Not Found in D:\\QXWAVE"}}};
  for (const auto& fault : cases) {
    SCOPED_TRACE(fault.what);
    std::filesystem::remove_all(Host("../D"));
    for (const char* id : {"M0001", "M0002", "M0003"}) AddSong(id, 10000);
    fault.prepare();
    Open();
    for (const std::string& id : fault.list) Add(id);
    Add("M0002");
    std::vector<std::string> titles = {kSure};
    titles.insert(titles.end(), fault.titles.begin(), fault.titles.end());
    EraseList(std::vector<std::string>(titles.size(), "OK"));
    EXPECT_EQ(Titles(), titles);
    EXPECT_EQ(Left("M0001").find('D'), std::string::npos);
    EXPECT_EQ(Left("M0002"), "") << "the run goes on";
    EXPECT_EQ(Left("M0003"), "DW");
    station_.PowerCut();
  }
}

TEST_F(EraseRecordings, DataFileThatCannotBeDeleted_IsToldAndTheAudioGoesAllTheSame) {
  Open();
  Add("M0001");
  station_.files().Fail(simulation::FileAct::kDelete, "*.DAT", RunTimeError::kPermissionDenied);
  EraseList({"OK", "OK"});
  EXPECT_EQ(Titles().back(), "Unexpected Error: 70");
  EXPECT_EQ(Left("M0001"), "D");
}

TEST_F(EraseRecordings, RecordingOnTheAir_PlaysToItsEndAndIsGoneAfterwards) {
  AddLibrary(3, 2, 2, 60000);
  StartRandom();
  const std::string on_air = aired_.back().id;
  Menu("EraseRecordings");
  Add(on_air);
  EraseList({"OK"});
  EXPECT_EQ(Left(on_air), "");
  Advance(58s);
  EXPECT_EQ(aired_.size(), 1U) << "an open file outlives its name";
  Advance(4s);
  EXPECT_GE(aired_.size(), 2U);
  EXPECT_NE(aired_.back().id, on_air);
}

TEST_F(EraseRecordings, Quit_AsksWhenSomethingIsListed) {
  for (const char* answer : {"Cancel", "No", "Yes"}) {
    SCOPED_TRACE(answer);
    AddSong("M0001", 10000);
    Open();
    Add("M0001");
    shown_before_ = boxes().size();
    QueueAnswer(answer);
    if (answer == std::string_view("No")) QueueAnswer("OK");
    station_.Do([this] { station_.FindScreen(kErase)->CloseWindow(); });
    EXPECT_EQ(Titles().front(), "List Not Erased");
    EXPECT_EQ(IsOpen(kErase), answer != std::string_view("Yes"));
    EXPECT_EQ(Left("M0001"), answer == std::string_view("No") ? "" : "DW");
    station_.PowerCut();
  }
}

TEST_F(EraseRecordings, ClearList_ForgetsTheListAndErasesNothing) {
  Open();
  Add("M0001");
  for (const char* answer : {"Cancel", "OK"}) {
    Click(kErase, "Command2", {answer});
    EXPECT_EQ(Rows(kErase, "List2").empty(), answer == std::string_view("OK"));
  }
  EXPECT_EQ(Left("M0001"), "DW");
}

TEST_F(EraseRecordings, TornDataFile_IsNamedAndTheScreenCloses) {
  PutFile("QXDATA/M0002.DAT", "\"20\"\r\n\"M0002\"\r\n");
  std::string said;
  station_.dialogs().on_box = [&](const simulation::ShownBox&) { said = Shown(kErase, "Text3"); };
  QueueAnswer("OK");
  Open();
  EXPECT_EQ(boxes().back().title, "Error Encountered [Error # 62]");
  EXPECT_EQ(said, "Cannot read M0002.DAT");
  EXPECT_FALSE(IsOpen(kErase));
}

TEST_F(EraseRecordings, LargeLibrary_IsReadInPortionsBeforeAndAfterErasing) {
  AddLibrary(300, 2, 2);
  Open();
  EXPECT_FALSE(Find<Button>(kErase, "Command1").enabled());
  EXPECT_FALSE(Find<CheckBox>(kErase, "Check1").enabled());
  Advance(1s);
  Add("M0001");
  EraseList({"OK"});
  EXPECT_FALSE(Find<Button>(kErase, "Command1").enabled());
  EXPECT_TRUE(Rows(kErase, "List1").empty());
  Advance(1s);
  EXPECT_EQ(Rows(kErase, "List1").size(), 299U);
  EXPECT_TRUE(Find<Button>(kErase, "Command1").enabled());
}

}  // namespace
}  // namespace quixair::testing
