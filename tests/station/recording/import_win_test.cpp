#include "station/library/hand_over_files.h"
#include "station/recording/import_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kWin = "ImportWin";
constexpr const char* kStart = "Select the DATA file in which to Import a recording...";

class ImportWinTest : public ImportFixture {
 protected:
  void OpenFor(const std::string& data_file) {
    StartConsole();
    Menu("ImportFile");
    ChooseData(data_file);
  }
  void ChooseData(const std::string& data_file) {
    Choose(kWin, "File1", {data_file});
    Find<ListBox>(kWin, "File1").DoubleClick();
  }
  void Import(const std::string& source) {
    Choose(kWin, "File2", {source});
    Click(kWin, "Command1");
  }
  /// OK to the question, and to the new length.
  void ImportWhole(const std::string& source) {
    QueueAnswer("OK");
    QueueAnswer("OK");
    Import(source);
    Advance(10s);
  }
};

TEST_F(ImportWinTest, EachKind_GetsTheAudioTheLengthAndKeepsItsOtherFields) {
  AddSpot("S100", 30000, "P", "01-01-26", "12-31-26");
  AddSong("M0100", 30000);
  PutFile("QXDATA/M0100.DAT", FileText("QXDATA/M0100.DAT") + Lines({"further"}));
  AddLiner("LL100", 30000);
  PutSource("BIG.Mp3", 61250);
  for (const char* id : {"S100", "M0100", "LL100"}) {
    SCOPED_TRACE(id);
    const std::string before = FileText("QXDATA/" + std::string(id) + ".DAT");
    OpenFor(std::string(id) + ".DAT");
    if (Find<DirListBox>(kWin, "Dir1").path() == "C:\\") GoInto(kWin, "NEW");
    ImportWhole("BIG.Mp3");
    EXPECT_EQ(FileText("QXDATA/" + std::string(id) + ".DAT"),
              "\"61.3\"" + before.substr(before.find("\r\n")));
    EXPECT_EQ(FileText("QXWAVE/" + std::string(id) + ".Mp3"), "61250")
        << "the source's extension, in its case";
    EXPECT_FALSE(IsThere("QXWAVE/" + std::string(id) + ".wav")) << "an id has one audio file";
    EXPECT_EQ(Shown(kWin, "Text1"), kStart) << "ready for the next one";
  }
  EXPECT_EQ(FilesIn("QXWAVE").size(), 3U) << "no half-made file is left";
}

TEST_F(ImportWinTest, WayOfAnImport_IsToldStepByStep) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  OpenFor("M0100.DAT");
  EXPECT_EQ(Shown(kWin, "Label5"), "File will be imported to M0100.DAT on Drive C...");
  EXPECT_EQ(Shown(kWin, "Text1"), "Now, choose the file to import by double clicking or pressing <enter>...");
  GoInto(kWin, "NEW");
  QueueAnswer("OK");
  QueueAnswer("OK");
  Import("HIT.WAV");
  EXPECT_EQ(Shown(kWin, "Label5"), "Deleting C:\\QXWAVE M0100.WAV/.MP3 (if exists)...");
  EXPECT_FALSE(Find<Button>(kWin, "Command3").enabled()) << "locked while it works";
  Advance(5ms);
  EXPECT_EQ(Shown(kWin, "Label5"), "Copying C:\\NEW\\HIT.WAV  to  C:\\QXWAVE\\M0100.WAV");
  Advance(10s);
  ASSERT_EQ(boxes().size(), 2U);
  EXPECT_EQ(boxes()[0].style, 49);
  EXPECT_EQ(boxes()[0].title, "About to Create M0100.WAV From HIT.WAV");
  EXPECT_EQ(boxes()[0].text, "Continuing will Overwrite any existing file named M0100.WAV on C:\\QXWAVE");
  EXPECT_EQ(boxes()[1].title, "Updating Data File");
  EXPECT_EQ(boxes()[1].text, "New File Length is: 200.0 Seconds");
  EXPECT_TRUE(Find<Button>(kWin, "Command3").enabled());
}

TEST_F(ImportWinTest, SourceInARoot_IsToldWithOneBackslash) {
  AddSong("M0100", 30000);
  PutFile("HIT.WAV", "200000");
  OpenFor("M0100.DAT");
  QueueAnswer("OK");
  QueueAnswer("OK");
  Import("HIT.WAV");
  Advance(5ms);
  EXPECT_EQ(Shown(kWin, "Label5"), "Copying C:\\HIT.WAV  to  C:\\QXWAVE\\M0100.WAV");
  Advance(10s);
}

TEST_F(ImportWinTest, OnTheAir_PlaysOnWhileALargeFileComesIn) {
  AddLibrary(5, 2, 2);
  PutSettings({});
  StartRandom();
  PutFile("NEW/LONG.WAV", "3000000" + std::string(20'000'000, ' '));
  Menu("ImportFile");
  ChooseData("M0005.DAT");
  GoInto(kWin, "NEW");
  QueueAnswer("OK");
  QueueAnswer("OK");
  Import("LONG.WAV");
  Advance(100ms);
  EXPECT_NE(Shown(kWin, "Progress").find(" %"), std::string::npos) << "a piece at a tick";
  ForgetAired();
  Advance(1min);
  EXPECT_GE(aired().size(), 4U);
  EXPECT_EQ(Field("M0005", 1), "3000.0");
}

TEST_F(ImportWinTest, Cancelled_TouchesNothing) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  const std::string before = FileText("QXDATA/M0100.DAT");
  OpenFor("M0100.DAT");
  GoInto(kWin, "NEW");
  QueueAnswer("Cancel");
  Import("HIT.WAV");
  Advance(10s);
  EXPECT_EQ(FileText("QXDATA/M0100.DAT"), before);
  EXPECT_EQ(FileText("QXWAVE/M0100.wav"), "30000");
  EXPECT_TRUE(Find<Button>(kWin, "Command1").enabled());
}

TEST_F(ImportWinTest, SourceThatCannotBePlayed_IsToldBeforeAnythingIsDeleted) {
  AddSong("M0100", 30000);
  PutFile("NEW/TEXT.WAV", "Dear listeners");
  PutFile("NEW/EMPTY.MP3", "");
  OpenFor("M0100.DAT");
  GoInto(kWin, "NEW");
  for (const char* name : {"TEXT.WAV", "EMPTY.MP3"}) {
    QueueAnswer("OK");
    Import(name);
    Advance(10s);
    EXPECT_EQ(boxes().back().title, "Cannot Import " + std::string(name));
    EXPECT_EQ(FileText("QXWAVE/M0100.wav"), "30000");
    EXPECT_TRUE(Find<Button>(kWin, "Command1").enabled());
  }
  EXPECT_EQ(boxes().size(), 2U);
}

TEST_F(ImportWinTest, CopyThatCannotBeMeasured_KeepsTheOldLengthAndCountsAsDone) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  OpenFor("M0100.DAT");
  GoInto(kWin, "NEW");
  QueueAnswer("OK");
  QueueAnswer("OK");
  Import("HIT.WAV");
  PutFile("NEW/HIT.WAV", "damaged since");
  Advance(10s);
  EXPECT_EQ(boxes().back().text, "New File Length is: 30 Seconds");
  EXPECT_EQ(Field("M0100", 1), "30");
  EXPECT_EQ(FileText("QXWAVE/M0100.WAV"), "damaged since");
}

TEST_F(ImportWinTest, OntoItself_IsRefusedUnderAnyName) {
  AddSong("M0100", 30000);  // M0100.wav
  std::filesystem::create_directory_symlink(Host("QXWAVE"), Host("ALIAS"));
  PutFile("QXWAVE/OTHER.WAV", "1000");
  std::filesystem::create_hard_link(Host("QXWAVE/M0100.wav"), Host("QXWAVE/TWIN.MP3"));
  const std::pair<const char*, const char*> cases[] = {
      {"QXWAVE", "M0100.wav"}, {"ALIAS", "M0100.wav"}, {"QXWAVE", "TWIN.MP3"}};
  for (const auto& [folder, name] : cases) {
    SCOPED_TRACE(std::string(folder) + " " + name);
    station_.PowerCut();
    std::filesystem::remove(Host("QXAIR/IMPATH.DTA"));
    OpenFor("M0100.DAT");
    GoInto(kWin, folder);
    QueueAnswer("OK");
    Import(name);
    Advance(10s);
    EXPECT_EQ(boxes().back().title, "Cannot Copy File Onto Itself");
    EXPECT_EQ(FileText("QXWAVE/M0100.wav"), "30000");
  }
}

TEST_F(ImportWinTest, ClosedInTheMiddle_LeavesNoHalfFileAndTheRecordAsItWas) {
  AddSong("M0100", 30000);
  PutFile("NEW/LONG.WAV", "3000000" + std::string(20'000'000, ' '));
  const std::string before = FileText("QXDATA/M0100.DAT");
  for (const bool program : {false, true}) {
    station_.PowerCut();
    std::filesystem::remove(Host("QXAIR/IMPATH.DTA"));
    OpenFor("M0100.DAT");
    GoInto(kWin, "NEW");
    QueueAnswer("OK");
    Import("LONG.WAV");
    Advance(50ms);
    EXPECT_EQ(FilesIn("QXWAVE"), std::vector<std::string>{"M0100.COPYING"});
    if (program) {
      station_.PowerCut();
    } else {
      station_.Do([this] { station_.FindScreen(kWin)->CloseWindow(); });
    }
    EXPECT_TRUE(FilesIn("QXWAVE").empty());
    EXPECT_EQ(FileText("QXDATA/M0100.DAT"), before);
  }
}

TEST_F(ImportWinTest, EntryScreensRequest_IsTakenAndLedBackTo) {
  const std::pair<RecordingKind, const char*> kinds[] = {{RecordingKind::kSpot, "RecordSpot"},
                                                         {RecordingKind::kMusic, "RecordASong"},
                                                         {RecordingKind::kLiner, "RecordLiner"}};
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  for (const auto& [kind, screen] : kinds) {
    for (const bool quit : {false, true}) {
      SCOPED_TRACE(screen);
      StartConsole();
      station_.Do([this, kind = kind] {
        SkipAndGoOn(WriteImportRequest(station_.platform().files, {"M0100", "C", kind}));
        station_.platform().screens.Open(kWin);
      });
      EXPECT_EQ(Shown(kWin, "Label5"), "File will be imported to M0100.DAT on Drive C...");
      if (Find<DirListBox>(kWin, "Dir1").path() == "C:\\") GoInto(kWin, "NEW");
      if (quit) {
        Click(kWin, "Command2");
      } else {
        ImportWhole("HIT.WAV");
      }
      EXPECT_FALSE(IsOpen(kWin));
      EXPECT_TRUE(IsOpen(screen));
    }
  }
  Menu("ImportFile");
  EXPECT_EQ(Shown(kWin, "Text1"), kStart) << "the menu's way knows of no request";
}

TEST_F(ImportWinTest, RequestToAnOpenScreen_IsTakenAtOnceOrBehindTheImportThatRuns) {
  for (const char* id : {"M0001", "M0002"}) AddSong(id, 30000);
  PutFile("NEW/LONG.WAV", "3000000" + std::string(20'000'000, ' '));
  PutFile("QXAIR/IMPATH.DTA", "\"C:\\NEW\"\r\n");
  const auto ask_for = [this](const char* id, RecordingKind kind) {
    station_.Do([this, id, kind] {
      SkipAndGoOn(WriteImportRequest(station_.platform().files, {id, "C", kind}));
      station_.platform().screens.Open(kWin);
    });
  };
  enum class Work { kNone, kInTheQuestion, kCopying };
  const struct {
    const char* means;
    bool from_entry;
    Work work;
  } cases[] = {{"chosen from the menu", false, Work::kNone},
               {"asked for by an entry screen", true, Work::kNone},
               {"before a question that is answered Cancel", true, Work::kInTheQuestion},
               {"while the menu's choice is copied", false, Work::kCopying},
               {"while an entry screen's is copied", true, Work::kCopying}};
  for (const auto& [means, from_entry, work] : cases) {
    SCOPED_TRACE(means);
    OpenFor("M0001.DAT");
    if (from_entry) ask_for("M0001", RecordingKind::kSpot);
    const bool copies = work == Work::kCopying;
    if (work == Work::kInTheQuestion) {
      station_.dialogs().on_box = [&](const auto&) { ask_for("M0002", RecordingKind::kMusic); };
    }
    if (work != Work::kNone) {
      QueueAnswer(copies ? "OK" : "Cancel");
      if (copies) QueueAnswer("OK");
      Import("LONG.WAV");
      Advance(20ms);
      station_.dialogs().on_box = nullptr;
    }
    if (work != Work::kInTheQuestion) ask_for("M0002", RecordingKind::kMusic);
    Advance(1min);
    ASSERT_TRUE(IsOpen(kWin));
    EXPECT_EQ(Shown(kWin, "Label5"), "File will be imported to M0002.DAT on Drive C...");
    EXPECT_EQ(Field("M0001", 1), copies ? "3000.0" : "30") << "the import that ran is whole";
    EXPECT_FALSE(IsOpen("RecordSpot"));
    Click(kWin, "Command2");
    EXPECT_TRUE(IsOpen("RecordASong")) << "back to the screen that asked last";
    AddSong("M0001", 30000);
  }
}

TEST_F(ImportWinTest, RequestOfNoKnownKind_IsTakenAndLeadsNowhere) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  for (const char* code : {"", "7"}) {
    StartConsole();
    PutFile("QXAIR/IMPORT.DAT", "\"M0100\"\r\n\"C\"\r\n\"" + std::string(code) + "\"\r\n");
    station_.Do([this] { station_.platform().screens.Open(kWin); });
    if (Find<DirListBox>(kWin, "Dir1").path() == "C:\\") GoInto(kWin, "NEW");
    ImportWhole("HIT.WAV");
    EXPECT_EQ(Field("M0100", 1), "200.0");
    EXPECT_TRUE(IsOpen(kWin));
    EXPECT_FALSE(IsOpen("RecordLiner"));
  }
}

TEST_F(ImportWinTest, LastFolder_IsKeptAndShownOnceADataFileIsChosen) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  const std::string kept = "\"C:\\NEW\"\r\n";
  for (const char* button : {"Command2", "Command3"}) {
    std::filesystem::remove(Host("QXAIR/IMPATH.DTA"));
    OpenFor("M0100.DAT");
    GoInto(kWin, "NEW");
    Click(kWin, button);
    EXPECT_EQ(FileText("QXAIR/IMPATH.DTA"), kept) << button;
  }
  OpenFor("M0100.DAT");
  EXPECT_EQ(Rows(kWin, "File2"), std::vector<std::string>{"HIT.WAV"});
  StartConsole();
  Menu("ImportFile");
  EXPECT_EQ(Find<DirListBox>(kWin, "Dir1").path(), "C:\\");
  Click(kWin, "Command2");
  EXPECT_EQ(FileText("QXAIR/IMPATH.DTA"), kept) << "a look at the screen changes nothing";
}

TEST_F(ImportWinTest, DataFilesThatCouldNotBeRewritten_AreRefused) {
  AddSong("M0100", 30000);
  PutFile("QXDATA/TEMP.DAT", FileText("QXDATA/M0100.DAT"));
  PutFile("QXDATA/M1.DAT", "\"30\"\r\n\"M1\"\r\n\"C\"\r\n\"torn");
  PutFile("QXDATA/S1.DAT", "");
  StartConsole();
  Menu("ImportFile");
  for (const char* name : {"TEMP.DAT", "M1.DAT", "S1.DAT"}) {
    QueueAnswer("OK");
    ChooseData(name);
    EXPECT_EQ(boxes().back().title, "Cannot Import to " + std::string(name));
    EXPECT_EQ(Shown(kWin, "Text1"), kStart);
  }
  EXPECT_EQ(boxes().size(), 3U);
}

TEST_F(ImportWinTest, DriveThatIsNotThere_IsToldAndTheListsGoToC) {
  StartConsole();
  Menu("ImportFile");
  QueueAnswer("OK");
  Choose(kWin, "Drive1", {"D:"});
  EXPECT_EQ(boxes().back().title, "Drive D not available");
  EXPECT_EQ(Find<DriveListBox>(kWin, "Drive1").drive(), 'C');
  EXPECT_EQ(Find<DirListBox>(kWin, "Dir1").path(), "C:\\");
}

TEST_F(ImportWinTest, TargetDriveOrFolderGone_IsToldAndTheScreenGoesOn) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  std::string record = FileText("QXDATA/M0100.DAT");
  record.replace(record.find("\"C\""), 3, "\"D\"");
  PutFile("QXDATA/M0100.DAT", record);
  for (const bool drive_there : {false, true}) {
    if (drive_there) std::filesystem::create_directories(folder_.path() / "D");
    OpenFor("M0100.DAT");
    if (Find<DirListBox>(kWin, "Dir1").path() == "C:\\") GoInto(kWin, "NEW");
    ImportWhole("HIT.WAV");
    EXPECT_EQ(boxes().back().title, "Path Not Found");
    EXPECT_EQ(boxes().back().text,
              "The destination drive may be unavailable.  Check your\nhardware.  If drive D is no longer "
              "available, "
              "delete the\ndata file M0100.DAT and re-enter using a valid drive.");
    EXPECT_EQ(FileText("QXDATA/M0100.DAT"), record);
    EXPECT_EQ(Shown(kWin, "Text1"), kStart);
  }
}

TEST_F(ImportWinTest, AnyOtherFault_IsToldAndEndsTheProgramWithTheOldAudioInPlace) {
  AddSong("M0100", 30000);
  PutSource("HIT.WAV", 200000);
  std::filesystem::create_directories(Host("QXWAVE/M0100.COPYING"));  // the copy cannot begin
  OpenFor("M0100.DAT");
  GoInto(kWin, "NEW");
  ImportWhole("HIT.WAV");
  EXPECT_EQ(boxes().back().title, "An Error Has Occurred: Err = 75");
  EXPECT_FALSE(station_.running());
  EXPECT_EQ(FileText("QXWAVE/M0100.wav"), "30000");
}

TEST_F(ImportWinTest, NothingChosen_SaysWhatIsMissing) {
  AddSong("M0100", 30000);
  StartConsole();
  Menu("ImportFile");
  Click(kWin, "Command1");
  EXPECT_EQ(Shown(kWin, "Text1"), kStart);
  ChooseData("M0100.DAT");
  Click(kWin, "Command1");
  EXPECT_EQ(Shown(kWin, "Text1"), "Now, choose the file to import by double clicking or pressing <enter>...");
  EXPECT_TRUE(boxes().empty());
}

}  // namespace
}  // namespace quixair::testing
