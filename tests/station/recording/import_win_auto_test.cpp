#include "station/platform/text.h"
#include "station/recording/import_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kAuto = "ImportWinAuto";

class ImportWinAutoTest : public ImportFixture {
 protected:
  /// In the sources' folder, with drive C as the target, and without questions.
  void Open(std::string_view convention = "Option1", bool ask = false) {
    StartConsole();
    Menu("FastImporter");
    if (Find<DirListBox>(kAuto, "Dir1").path() == "C:\\") GoInto(kAuto, "NEW");
    Choose(kAuto, "Drive2", {"C:"});
    Find<OptionButton>(kAuto, convention).PersonSelects();
    Find<CheckBox>(kAuto, "Check1").PersonTicks(ask);
  }
  void Import(const std::vector<std::string>& names) {
    Choose(kAuto, "File2", names);
    Click(kAuto, "Command1");
  }
  void ImportWhole(const std::vector<std::string>& names) {
    Import(names);
    Advance(1min);
    EXPECT_EQ(Shown(kAuto, "Text1"), "Done Importing!");
  }
};

TEST_F(ImportWinAutoTest, SelectedFiles_BecomeSongsWithFieldsFromNameAndDate) {
  PutSource("The Lanterns - Paper Moon over the Bay.mp3", 201250);
  PutSource("The short one.WAV", 3000);
  PutSource("Unselected.wav", 3000);
  Open();
  ImportWhole({"The Lanterns - Paper Moon over the Bay.mp3", "The short one.WAV"});
  EXPECT_EQ(
      FileText("QXDATA/MThe1.DAT"),
      "\"201.3\"\r\n\"MThe1\"\r\n\"c\"\r\n\"The Lanterns - Paper\"\r\n\" Moon over the Bay.m\"\r\n\"\"\r\n"
      "\"11-22-26\"\r\n\"2026\"\r\n");
  EXPECT_EQ(FileText("QXDATA/MThe2.DAT"),
            "\"3.0\"\r\n\"MThe2\"\r\n\"c\"\r\n\"The short "
            "one.WAV\"\r\n\"\"\r\n\"\"\r\n\"11-22-26\"\r\n\"2026\"\r\n");
  EXPECT_EQ(FilesIn("QXWAVE"), (std::vector<std::string>{"MThe1.mp3", "MThe2.WAV"}));
  EXPECT_TRUE(boxes().empty()) << "without the tick there is no box at all";
  EXPECT_EQ(Shown(kAuto, "Progress"), "2 of 2 files imported.");
  EXPECT_EQ(Shown(kAuto, "Text2"), "");
  EXPECT_EQ(Rows(kAuto, "File1"), (std::vector<std::string>{"MThe1.DAT", "MThe2.DAT"}));
}

TEST_F(ImportWinAutoTest, Ids_TakeTheFirstFreeNumberOfTheirSeries) {
  const struct {
    const char *convention, *source, *taken, *id;
  } cases[] = {
      {"Option1", "abc.wav", "", "Mabc1"},       {"Option1", "abcd.wav", "MABC1 mabc2 Mabc4", "Mabc3"},
      {"Option1", " ab.wav", "", "M ab1"},       {"Option1", "a.wav", "", "Ma.w1"},
      {"Option2", "abc.wav", "", "M1"},          {"Option2", "abc.wav", "M1 M2 M3", "M4"},
      {"Option2", "abc.wav", "M01 M0002", "M1"},
  };
  for (const auto& [convention, source, taken, id] : cases) {
    SCOPED_TRACE(std::string(source) + " beside " + taken);
    station_.PowerCut();
    for (const char* folder : {"QXDATA", "QXWAVE", "NEW"}) std::filesystem::remove_all(Host(folder));
    for (const char* folder : {"QXDATA", "QXWAVE"}) std::filesystem::create_directories(Host(folder));
    std::istringstream ids{taken};
    for (std::string held; ids >> held;) PutFile("QXDATA/" + held + ".DAT", "old");
    PutSource(source, 3000);
    Open(convention);
    ImportWhole({source});
    EXPECT_EQ(Field(id, 2), id);
    EXPECT_TRUE(IsThere("QXWAVE/" + std::string(id) + ".wav"));
  }
}

TEST_F(ImportWinAutoTest, EndOfASeries_IsToldAndEndsTheImport) {
  const struct {
    const char *convention, *beginning, *title, *text;
    int last;
  } cases[] = {
      {"Option1", "Mabc", "Reached last in series",
       "Sorry, you have reached the highest # in this \nseries (999) please rename the original file or "
       "import manually.",
       999},
      {"Option2", "M", "Reached last in series (9999)",
       "Sorry, you have reached the highest # in this \nseries (9999) please rename the original file or "
       "import manually.",
       9999},
  };
  PutSource("abc1.wav", 3000);
  PutSource("abc2.wav", 3000);
  for (const auto& [convention, beginning, title, text, last] : cases) {
    for (int i = 1; i < last; ++i) PutFile("QXDATA/" + (beginning + std::to_string(i)) + ".DAT", "");
    Open(convention);
    QueueAnswer("OK");
    Import({"abc1.wav", "abc2.wav"});
    Advance(1min);
    EXPECT_EQ(boxes().back().title, title);
    EXPECT_EQ(boxes().back().text, text);
    EXPECT_EQ(boxes().back().style, 16);
    EXPECT_TRUE(IsThere("QXWAVE/" + (beginning + std::to_string(last)) + ".wav"))
        << "the last one was still free";
    EXPECT_EQ(Shown(kAuto, "Progress"), "1 of 2 files imported.");
    EXPECT_TRUE(Find<Button>(kAuto, "Command1").enabled());
  }
}

TEST_F(ImportWinAutoTest, Asking_TakesTheAnswersAndTellsTheLength) {
  PutSource("The Lanterns - Paper Moon over the Bay.mp3", 201250);
  Open("Option1", true);
  for (const char* answer : {"Ida Rue and a name far too long", "", "1999x", "OK", "OK"}) QueueAnswer(answer);
  ImportWhole({"The Lanterns - Paper Moon over the Bay.mp3"});
  ASSERT_EQ(boxes().size(), 5U);
  EXPECT_EQ(boxes()[0].title, "About to Create MThe1 From The Lanterns - Paper Moon over the Bay.mp3");
  EXPECT_EQ(boxes()[0].text, "Edit the ARTIST if necessary [20 char. max.], then press OK or Enter");
  EXPECT_EQ(boxes()[0].offered, "The Lanterns - Paper");
  EXPECT_EQ(boxes()[1].offered, " Moon over the Bay.m");
  EXPECT_EQ(boxes()[2].offered, "2026");
  EXPECT_EQ(boxes()[3].title, "About to Create MThe1.mp3 From The Lanterns - Paper Moon over the Bay.mp3");
  EXPECT_EQ(boxes()[4].title, "Import Successful");
  EXPECT_EQ(boxes()[4].text, "New File Length is: 201.3 Seconds");
  EXPECT_EQ(Field("MThe1", 4), "Ida Rue and a name f");
  EXPECT_EQ(Field("MThe1", 5), "");
  EXPECT_EQ(Field("MThe1", 8), "1999");
}

TEST_F(ImportWinAutoTest, CancelOfTheQuestion_LeavesOutThatFileAlone) {
  for (const char* name : {"abc.wav", "def.wav", "ghi.wav"}) PutSource(name, 3000);
  Open("Option1", true);
  for (const char* name : {"abc", "def", "ghi"}) {
    for (const char* answer : {"A", "B", "2000"}) QueueAnswer(answer);
    QueueAnswer(name == std::string("def") ? "Cancel" : "OK");
    if (name != std::string("def")) QueueAnswer("OK");
  }
  ImportWhole({"abc.wav", "def.wav", "ghi.wav"});
  EXPECT_EQ(FilesIn("QXDATA"), (std::vector<std::string>{"Mabc1.DAT", "Mghi1.DAT"}));
  EXPECT_EQ(FilesIn("QXWAVE"), (std::vector<std::string>{"Mabc1.wav", "Mghi1.wav"}));
  EXPECT_EQ(Shown(kAuto, "Progress"), "2 of 3 files imported.  Left out: def.wav (cancelled)");
}

TEST_F(ImportWinAutoTest, StopBehindACancel_LeavesTheOtherFilesUnasked) {
  for (const char* name : {"abc.wav", "def.wav"}) PutSource(name, 3000);
  Open("Option1", true);
  for (const char* answer : {"A", "B", "2000", "Cancel"}) QueueAnswer(answer);
  Import({"abc.wav", "def.wav"});
  Advance(1500ms);
  EXPECT_EQ(Shown(kAuto, "Text1"), "Left out abc.wav.  Click 'Stop' to import no more files.");
  Click(kAuto, "Command2");
  Advance(1min);
  EXPECT_EQ(boxes().size(), 4U);
  EXPECT_EQ(Shown(kAuto, "Text1"), "The import was stopped.");
  EXPECT_EQ(Shown(kAuto, "Progress"), "0 of 2 files imported.  Left out: abc.wav (cancelled)");
}

TEST_F(ImportWinAutoTest, Stop_EndsBetweenTwoFiles) {
  std::vector<std::string> names;
  for (int i = 100; i < 120; ++i) {
    names.push_back(std::to_string(i) + ".wav");
    PutSource(names.back(), 3000);
  }
  Open("Option2");
  Import(names);
  EXPECT_EQ(Shown(kAuto, "Command2"), "&Stop");
  EXPECT_FALSE(Find<Button>(kAuto, "Command1").enabled());
  while (FilesIn("QXDATA").size() < 5) Advance(5ms);
  Click(kAuto, "Command2");
  Advance(1min);
  EXPECT_EQ(Shown(kAuto, "Text1"), "The import was stopped.");
  const std::size_t songs = FilesIn("QXDATA").size();
  EXPECT_LT(songs, 8U);
  EXPECT_EQ(FilesIn("QXWAVE").size(), songs);
  EXPECT_EQ(Shown(kAuto, "Progress"), std::to_string(songs) + " of 20 files imported.");
  EXPECT_EQ(Shown(kAuto, "Command2"), "&Quit");
  Click(kAuto, "Command2");
  EXPECT_FALSE(IsOpen(kAuto));
}

TEST_F(ImportWinAutoTest, UnplayableFiles_AreLeftOutAndTold) {
  PutSource("abc.wav", 3000);
  PutFile("NEW/abd.mp3", "noise");
  PutSource("abe.wav", 4000);
  for (const bool ask : {false, true}) {
    SCOPED_TRACE(ask);
    const std::size_t before = boxes().size();
    Open("Option2", ask);
    if (ask) {
      for (const char* answer : {"A", "B", "2000", "OK"}) QueueAnswer(answer);
      ImportWhole({"abd.mp3"});
      EXPECT_EQ(boxes().back().title, "Cannot Import abd.mp3");
      continue;
    }
    ImportWhole({"abc.wav", "abd.mp3", "abe.wav"});
    EXPECT_EQ(boxes().size(), before);
    EXPECT_EQ(Shown(kAuto, "Progress"), "2 of 3 files imported.  Left out: abd.mp3 (cannot be played)");
    EXPECT_EQ(Field("M2", 1), "4.0") << "no id is lost to a file left out";
  }
}

TEST_F(ImportWinAutoTest, SourcesThatAnIdWouldRemove_AreNeverLost) {
  for (const char* name : {"M1.wav", "M2.wav", "Zed.wav"}) PutFile("QXWAVE/" + std::string(name), "3000");
  StartConsole();
  Menu("FastImporter");
  GoInto(kAuto, "QXWAVE");
  Choose(kAuto, "Drive2", {"C:"});
  Find<OptionButton>(kAuto, "Option2").PersonSelects();
  Find<CheckBox>(kAuto, "Check1").PersonTicks(false);
  ImportWhole({"M1.wav", "M2.wav", "Zed.wav"});
  EXPECT_EQ(FilesIn("QXWAVE"), (std::vector<std::string>{"M1.wav", "M2.wav", "Zed.wav"}));
  EXPECT_TRUE(FilesIn("QXDATA").empty());
}

TEST_F(ImportWinAutoTest, CopyThatCannotBeMeasured_TakesTheLengthOfTheLastGoodOne) {
  PutSource("abc.wav", 3000);
  PutSource("abd.wav", 4000);
  Open("Option2");
  Import({"abc.wav", "abd.wav"});
  while (!IsThere("QXWAVE/M2.COPYING")) Advance(5ms);
  PutFile("NEW/abd.wav", "damaged since");
  Advance(1min);
  EXPECT_EQ(Field("M1", 1), "3.0");
  EXPECT_EQ(Field("M2", 1), "3.0");
}

TEST_F(ImportWinAutoTest, NoDriveOrNoFile_IsToldAndNothingBegins) {
  PutSource("abc.wav", 3000);
  StartConsole();
  Menu("FastImporter");
  GoInto(kAuto, "NEW");
  QueueAnswer("OK");
  Import({"abc.wav"});
  EXPECT_EQ(boxes().back().text, "Select a Drive to Import to Before Continuing!");
  Choose(kAuto, "Drive2", {"C:"});
  EXPECT_EQ(Shown(kAuto, "Label5"), "File will be imported to Drive c...");
  Choose(kAuto, "File2", {});
  Click(kAuto, "Command1", {"OK"});
  EXPECT_EQ(boxes().back().text, "Select a File to Import Before Continuing!");
  Click(kAuto, "Command4", {"OK"});
  EXPECT_EQ(boxes().back().title, "How to use the Fast Importer");
  Advance(10s);
  EXPECT_TRUE(FilesIn("QXDATA").empty());
}

TEST_F(ImportWinAutoTest, Settings_AreKeptByQuitRestartAndImport) {
  PutSource("abc.wav", 3000);
  for (const char* button : {"Command1", "Command2", "Command3"}) {
    SCOPED_TRACE(button);
    std::filesystem::remove(Host("QXAIR/FASTIMP.DTA"));
    Open("Option2", false);
    Choose(kAuto, "File2", {"abc.wav"});
    Click(kAuto, button);
    EXPECT_EQ(FileText("QXAIR/FASTIMP.DTA"), "\"c:\"\r\n\"C:\\NEW\"\r\n\"c:\"\r\n0\r\n0\r\n");
  }
  StartConsole();
  Menu("FastImporter");
  EXPECT_EQ(Find<DriveListBox>(kAuto, "Drive2").drive(), 'C');
  EXPECT_EQ(Rows(kAuto, "File2"), std::vector<std::string>{"abc.wav"});
  EXPECT_TRUE(Find<OptionButton>(kAuto, "Option2").selected());
  EXPECT_FALSE(Find<CheckBox>(kAuto, "Check1").ticked());
}

TEST_F(ImportWinAutoTest, KeptFolderThatHasGone_LeavesItsDriveOnView) {
  std::filesystem::create_directories(folder_.path() / "D" / "STICK");
  PutFile("QXAIR/FASTIMP.DTA", "\"d:\"\r\n\"D:\\GONE\"\r\n\"d:\"\r\n1\r\n0\r\n");
  StartConsole();
  Menu("FastImporter");
  EXPECT_EQ(Find<DriveListBox>(kAuto, "Drive1").drive(), 'D');
  EXPECT_EQ(Find<DriveListBox>(kAuto, "Drive2").drive(), 'D');
  EXPECT_EQ(Rows(kAuto, "Dir1"), std::vector<std::string>{"STICK"});
  std::filesystem::remove_all(folder_.path() / "D");
  QueueAnswer("OK");
  StartConsole();
  Menu("FastImporter");
  EXPECT_EQ(TitlesSince(0), std::vector<std::string>{"Drive D not available"});
  EXPECT_EQ(Find<DriveListBox>(kAuto, "Drive1").drive(), 'C');
}

TEST_F(ImportWinAutoTest, TargetFolderGone_IsToldAndEndsTheImport) {
  PutSource("abc.wav", 3000);
  PutSource("def.wav", 3000);
  std::filesystem::create_directories(folder_.path() / "D" / "QXWAVE");
  Open();
  Choose(kAuto, "Drive2", {"D:"});
  QueueAnswer("OK");
  Import({"abc.wav", "def.wav"});
  while (!IsThere("QXDATA/Mabc1.DAT")) Advance(5ms);
  std::filesystem::remove_all(folder_.path() / "D");
  Advance(1min);
  EXPECT_EQ(TitlesSince(0), std::vector<std::string>{"Path Not Found"});
  EXPECT_EQ(FilesIn("QXDATA"), std::vector<std::string>{"Mabc1.DAT"});
  EXPECT_EQ(Shown(kAuto, "Progress"), "1 of 2 files imported.");
  EXPECT_TRUE(Find<Button>(kAuto, "Command1").enabled());
}

TEST_F(ImportWinAutoTest, DataFileThatCannotBeWritten_LeavesNoAudioOfNobody) {
  PutSource("abc.wav", 3000);
  std::filesystem::create_directories(Host("QXDATA/Mabc1.DAT"));
  Open();
  QueueAnswer("OK");
  Import({"abc.wav"});
  Advance(1min);
  EXPECT_EQ(boxes().back().title, "An Error Has Occurred: Err = 75");
  EXPECT_FALSE(station_.running());
  EXPECT_TRUE(FilesIn("QXWAVE").empty());
}

TEST_F(ImportWinAutoTest, NamesThatTheStationCannotHold_AreImportedEach) {
  PutFile("NEW/\u0141\u00F3d\u017A.wav", "3000");
  PutFile("NEW/\u0416\u00F3d\u0416.wav", "4000");
  PutFile("NEW/say \"hi\".wav", "5000");
  Open("Option2");
  EXPECT_EQ(Rows(kAuto, "File2").size(), 3U);
  ImportWhole(Rows(kAuto, "File2"));
  std::vector<std::string> lengths = {Field("M1", 1), Field("M2", 1), Field("M3", 1)};
  std::sort(lengths.begin(), lengths.end());
  EXPECT_EQ(lengths, (std::vector<std::string>{"3.0", "4.0", "5.0"}));
  EXPECT_EQ(Field("M3", 4), "say ?hi?.wav") << "a quote would break the data file";
}

}  // namespace
}  // namespace quixair::testing
