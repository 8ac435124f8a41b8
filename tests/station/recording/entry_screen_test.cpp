#include "station/recording/recording_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* kSpot = "RecordSpot";
constexpr const char* kSong = "RecordASong";
constexpr const char* kLiner = "RecordLiner";
constexpr const char* kReady = "Make your selection.  To re-record existing, choose from the list.";

class EntryScreens : public RecordingFixture {
 protected:
  std::string Id(std::string_view screen) { return Shown(screen, "Text2"); }
};

TEST_F(EntryScreens, Start_OffersSevenChoicesAndNoField) {
  for (const char* screen : {kSpot, kSong, kLiner}) {
    SCOPED_TRACE(screen);
    OpenEntry(screen);
    EXPECT_EQ(Shown(screen, "Text1"), kReady);
    for (int i = 1; i <= 9; ++i) {
      EXPECT_EQ(Enabled(screen, "Command" + std::to_string(i)), i <= 7) << "Command" << i;
    }
    for (const char* box : {"Text2", "Text3", "Text4", "Text8", "StartMM"})
      EXPECT_FALSE(Enabled(screen, box)) << box;
    EXPECT_FALSE(Find<DriveListBox>(screen, "Drive1").visible());
    EXPECT_EQ(Shown(screen, "StartMM") + Shown(screen, "StartDD") + Shown(screen, "StartYY"), "112226");
  }
}

TEST_F(EntryScreens, NewSpot_IsWrittenWithItsHandOverAndGoesToTheCapture) {
  BeginNew(kSpot, "100");
  Type(kSpot, "Text3", "Acme, Inc.");
  Type(kSpot, "Text5", "Sale");
  Type(kSpot, "KillMM", "05");
  Type(kSpot, "Text8", "F");
  Type(kSpot, "Text9", "B");
  Find<OptionButton>(kSpot, "Option2").PersonSelects();
  Click(kSpot, "Command9");
  const std::string lines =
      Lines({"[New]", "S100", "C", "Acme, Inc.", "Sale", "11-22-26", "05--", "F", "B", "60"});
  EXPECT_EQ(FileText("QXDATA/S100.DAT"), lines);
  EXPECT_EQ(FileText("QXDATA/TEMP.DAT"), lines);
  EXPECT_EQ(FileText("QXAIR/TEMPSPOT.DAT"), "\"S100\"\r\n");
  EXPECT_FALSE(IsOpen(kSpot));
  EXPECT_TRUE(IsOpen("RecordITSpot"));
}

TEST_F(EntryScreens, NewSongAndLiner_WriteTheirOwnLines) {
  BeginNew(kSong, "7");
  Type(kSong, "Text3", "Artist");
  Type(kSong, "Text5", "Title");
  Type(kSong, "Text8", "A");
  Type(kSong, "FromYear", "1987");
  Click(kSong, "Command9");
  EXPECT_EQ(FileText("QXDATA/M7.DAT"),
            Lines({"[New]", "M7", "C", "Artist", "Title", "A", "11-22-26", "1987"}));
  EXPECT_TRUE(IsOpen("RecordIt"));
  BeginNew(kLiner, "L12");
  Type(kLiner, "Text3", "Legal id");
  Type(kLiner, "Text8", "B");
  Type(kLiner, "Text9", "G");
  Click(kLiner, "Command9");
  EXPECT_EQ(FileText("QXDATA/LL12.DAT"), Lines({"[New]", "LL12", "C", "Legal id", "B", "G", "11-22-26", ""}));
  EXPECT_TRUE(IsOpen("RecordITLiner"));
}

TEST_F(EntryScreens, EachKind_HasItsOwnWordsColorsAndLimits) {
  AddSpot("S1", 30000);
  AddSong("M1", 30000);
  AddLiner("L1", 30000);
  const struct {
    const char *screen, *list, *editable, *offered, *file, *taken;
    std::vector<std::pair<const char*, int>> limits;
  } cases[] = {{kSpot,
                "Existing Spots:",
                "[Only Spots are Editable in this mode - 'S' ",
                "S|",
                "S1.DAT",
                "S1 is the selected file.  Edit data if needed, then 'Save'",
                {{"Text2", 6}, {"Text3", 15}, {"Text5", 15}, {"Text8", 1}, {"Text9", 1}, {"KillYY", 2}}},
               {kSong,
                "Existing Songs:",
                "[Only Music is Editable in this mode - 'M' ",
                "M|",
                "M1.DAT",
                "M1 is the selected file.  Edit data if needed, then 'Finished'",
                {{"Text2", 6}, {"Text3", 20}, {"Text5", 20}, {"Text8", 1}, {"FromYear", 4}}},
               {kLiner,
                "Existing Liners:",
                "[Only Liners are Editable in this mode - 'L' ",
                "L|",
                "L1.DAT",
                "L1 is the selected file.  Edit data if needed, then 'Save'",
                {{"Text2", 6}, {"Text3", 20}, {"Text8", 1}, {"Text9", 1}, {"StartMM", 2}}}};
  for (const auto& [screen, list, editable, offered, file, taken, limits] : cases) {
    SCOPED_TRACE(screen);
    OpenEntry(screen);
    EXPECT_EQ(Shown(screen, "Label11"), list);
    Click(screen, "Command4", {""});
    EXPECT_THAT(boxes().back().text, HasSubstr(editable));
    EXPECT_EQ(boxes().back().offered, offered);
    EXPECT_EQ(Find<Label>(screen, "CaptionText3").back_color(), kYellow);
    Select(screen, "File1", file);
    EXPECT_EQ(Shown(screen, "Text1"), "Move Up/Down, Then Double Click your selection to continue...");
    DoubleClick(screen, "File1", file);
    EXPECT_EQ(Shown(screen, "Text1"), taken);
    for (const auto& [box, limit] : limits) EXPECT_EQ(Find<TextBox>(screen, box).max_length(), limit) << box;
    Click(screen, "Command8");
    EXPECT_FALSE(Find<Label>(screen, "CaptionText3").back_color());
    Click(screen, "Command5", {"No"});
    EXPECT_EQ(Find<Label>(screen, "CaptionText3").back_color(), Color{0xCCCFFC});
  }
}

TEST_F(EntryScreens, FirstKeyOfAnId_IsExplainedAndGoesThrough) {
  const struct {
    const char *screen, *key, *hint, *id;
  } cases[] = {{kSpot, "s", "Did you know the S is inserted automatically for you?", "s"},
               {kSpot, "m", "Press TAB or click another field to edit next item when ready.", "m"},
               {kSong, "M", "Did you know the M is inserted automatically for you?", "M"},
               {kLiner, "l", "This item will be a Legal I.D.", "l"},
               {kLiner, "m", "This item will be a Type 2 Liner (Magic call)", "m"},
               {kLiner, "M", "This item will be a Type 2 Liner (magic call)", "M"}};
  for (const auto& [screen, key, hint, id] : cases) {
    SCOPED_TRACE(std::string(screen) + " " + key);
    OpenEntry(screen);
    Click(screen, "Command1");
    if (screen == kLiner) {
      EXPECT_THAT(Shown(screen, "Text1"), StartsWith("Special Liner Designations"));
    }
    Type(screen, "Text2", key);
    EXPECT_EQ(Shown(screen, "Text1"), hint);
    EXPECT_EQ(Id(screen), id);
    Type(screen, "Text2", "1");
    EXPECT_THAT(Shown(screen, "Text1"), StartsWith("Press TAB"));
  }
}

TEST_F(EntryScreens, CharactersThatNoFileNameTakes_EmptyTheId) {
  OpenEntry(kSpot);
  Click(kSpot, "Command1");
  for (const char key : std::string("\" /\\:;#|'")) {
    SCOPED_TRACE(key);
    Type(kSpot, "Text2", "12");
    QueueAnswer("OK");
    Type(kSpot, "Text2", {&key, 1});
    EXPECT_EQ(Id(kSpot), "");
    EXPECT_EQ(boxes().back().title, "Invalid Character ");
    EXPECT_EQ(boxes().back().text, std::string("The Character you entered (") + key +
                                       ") cannot\nbe used in filenames.  Try entering a \n"
                                       "different file name using 0-9, A-Z.");
    Find<TextBox>(kSpot, "Text2").Edit({&key, 1});
    EXPECT_EQ(Id(kSpot), "") << "pasted";
  }
  QueueAnswer("OK");
  Find<TextBox>(kSpot, "Text2").Edit("1/2");
  EXPECT_EQ(Id(kSpot), "") << "typed in the middle";
  Type(kSpot, "Text2", "1234567");
  EXPECT_EQ(Id(kSpot), "12345");
}

TEST_F(EntryScreens, EmptyId_CannotBeLeft) {
  OpenEntry(kSpot);
  Click(kSpot, "Command1");
  QueueAnswer("OK");
  Leave(kSpot, "Text2");
  EXPECT_EQ(boxes().back().title, "Enter A File Name ");
  EXPECT_TRUE(Enabled(kSpot, "Text2"));
  QueueAnswer("Cancel");
  Leave(kSpot, "Text2");
  EXPECT_FALSE(Enabled(kSpot, "Text2"));
  EXPECT_EQ(Shown(kSpot, "Text1"), kReady);
}

TEST_F(EntryScreens, EmptyId_IsNeverWritten) {
  const std::pair<const char*, const char*> kinds[] = {
      {kSpot, "QXDATA/S.DAT"}, {kSong, "QXDATA/M.DAT"}, {kLiner, "QXDATA/L.DAT"}};
  for (const auto& [screen, file] : kinds) {
    for (const bool looked_up : {false, true}) {
      OpenEntry(screen);
      Click(screen, "Command1");
      if (looked_up) {
        Fill(screen, "Text2", "123");
        QueueAnswer("OK");
        Fill(screen, "Text2", "");
      }
      Click(screen, "Command9");
      EXPECT_TRUE(IsOpen(screen));
      EXPECT_FALSE(Exists(file) || Exists("QXDATA/.DAT")) << file << (looked_up ? " after another id" : "");
      EXPECT_EQ(station_.FindScreen(screen)->focused()->name(), "Text2");
      Fill(screen, "Text2", "7");
      EXPECT_TRUE(Enabled(screen, "Command9")) << "the mode goes on";
    }
  }
}

TEST_F(EntryScreens, TypedIdOfARecording_MakesItAReRecord) {
  AddSpot("S42", 30015, "F", "01-02-26", "03-04-27", "Account");
  BeginNew(kSpot, "42");
  EXPECT_EQ(Id(kSpot), "S42");
  EXPECT_FALSE(Enabled(kSpot, "Text2"));
  EXPECT_EQ(Shown(kSpot, "Text3"), "Account");
  EXPECT_EQ(Shown(kSpot, "KillMM") + Shown(kSpot, "KillDD") + Shown(kSpot, "KillYY"), "030427");
  EXPECT_EQ(Shown(kSpot, "Text4"), "30.015") << "measured";
  EXPECT_EQ(Shown(kSpot, "Text10"), "C");
  EXPECT_FALSE(Find<DriveListBox>(kSpot, "Drive1").visible());
  Click(kSpot, "Command9");
  EXPECT_THAT(FileText("QXDATA/S42.DAT"), StartsWith("\"30.015\"\r\n\"S42\"\r\n\"C\"\r\n\"Account\""));
  EXPECT_TRUE(Exists("QXWAVE/S42.wav")) << "until the capture overwrites it";
}

TEST_F(EntryScreens, IdTypedWithItsLetter_GetsItTwice) {
  BeginNew(kSpot, "S12");
  Click(kSpot, "Command9");
  EXPECT_TRUE(Exists("QXDATA/SS12.DAT"));
}

TEST_F(EntryScreens, RecordPressedBeforeTheIdIsLeft_LooksItUpFirst) {
  AddSpot("S42", 30000);
  OpenEntry(kSpot);
  Click(kSpot, "Command1");
  Type(kSpot, "Text2", "42");
  Click(kSpot, "Command9");
  EXPECT_TRUE(IsOpen(kSpot)) << "the operator sees first that there is one";
  EXPECT_EQ(Id(kSpot), "S42");
  Click(kSpot, "Command8");
  Click(kSpot, "Command1");
  Type(kSpot, "Text2", "43");
  Click(kSpot, "Command9");
  EXPECT_TRUE(Exists("QXDATA/S43.DAT"));
}

TEST_F(EntryScreens, LengthFrame_IsOneOfFourWays) {
  BeginNew(kSpot, "1");
  const auto state = [this] {
    std::string text;
    for (const char* option : {"Option1", "Option2", "Option3"}) {
      text += Find<OptionButton>(kSpot, option).selected() ? '1' : '0';
    }
    return text + (Find<CheckBox>(kSpot, "Check1").ticked() ? " stop " : " - ") + Shown(kSpot, "Text6");
  };
  EXPECT_EQ(state(), "000 stop ");
  Find<OptionButton>(kSpot, "Option3").PersonSelects();
  EXPECT_EQ(state(), "001 - ");
  Type(kSpot, "Text6", "45");
  EXPECT_EQ(state(), "000 - 45");
  Type(kSpot, "Text6", "x");
  EXPECT_EQ(Shown(kSpot, "Text6"), "") << "digits only";
  Type(kSpot, "Text6", "45");
  Find<TextBox>(kSpot, "Text6").Edit({});
  EXPECT_EQ(state(), "000 stop ") << "typed and deleted is none";
  Find<OptionButton>(kSpot, "Option2").PersonSelects();
  Type(kSpot, "Text6", "x");
  EXPECT_EQ(state(), "010 - ");
  Type(kSpot, "Text6", "45");
  for (const bool ticked : {true, false}) {
    Find<CheckBox>(kSpot, "Check1").PersonTicks(ticked);
    EXPECT_EQ(state(), "000 stop ") << "one of the four always holds";
  }
  Type(kSpot, "Text6", "45");
  Click(kSpot, "Command9");
  EXPECT_THAT(FileText("QXDATA/S1.DAT"), HasSubstr("\"\"\r\n\"45\"\r\n"));
  OpenEntry(kSpot);
  DoubleClick(kSpot, "File1", "S1.DAT");
  EXPECT_EQ(state(), "000 - 45");
}

TEST_F(EntryScreens, StartDate_IsRefilledOrRefused) {
  const struct {
    const char *box, *typed, *shown;
  } cases[] = {{"StartMM", "", "11"}, {"StartMM", "13", ""},  {"StartMM", "12", "12"},
               {"StartMM", "1x", ""}, {"StartDD", "", "22"},  {"StartDD", "32", ""},
               {"StartYY", "", "26"}, {"StartYY", "30", "30"}};
  BeginNew(kSpot, "1");
  for (const auto& [box, typed, shown] : cases) {
    SCOPED_TRACE(std::string(box) + " " + typed);
    Find<TextBox>(kSpot, box).Edit(typed);
    if (Shown(kSpot, box) == typed) Leave(kSpot, box);
    EXPECT_EQ(Shown(kSpot, box), shown);
  }
  const struct {
    const char *month, *day;
    bool stands;
  } days[] = {{"04", "31", false}, {"4", "31", true},  {"04", "30", true},
              {"02", "30", false}, {"02", "29", true}, {"12", "31", true}};
  for (const auto& [month, day, stands] : days) {
    Find<TextBox>(kSpot, "StartMM").Edit(month);
    Fill(kSpot, "StartDD", day);
    EXPECT_EQ(Shown(kSpot, "StartDD"), stands ? day : "") << month << "-" << day;
  }
  Fill(kSpot, "KillMM", "99");
  EXPECT_EQ(Shown(kSpot, "KillMM"), "99") << "a kill date is not checked";
}

TEST_F(EntryScreens, DateOfSingleDigitsOrInPart_ShowsAsItWasTypedAndIsKept) {
  const struct {
    const char *kill, *shown;
    bool marked;
  } cases[] = {{"03-04-27", "03 04 27", false}, {"5-1-26", "5 1 26", false},    {"05--", "05  ", true},
               {"12-3-", "12 3 ", true},        {"02-31-27", "02 31 27", true}, {"", "  ", false}};
  for (const auto& [kill, shown, marked] : cases) {
    SCOPED_TRACE(kill);
    AddSpot("S42", 30000, "F", "01-02-26", kill);
    const std::string before = FileText("QXDATA/S42.DAT");
    OpenEntry(kSpot);
    Click(kSpot, "Command4", {"S42"});
    EXPECT_EQ(Shown(kSpot, "KillMM") + ' ' + Shown(kSpot, "KillDD") + ' ' + Shown(kSpot, "KillYY"), shown);
    EXPECT_EQ(Find<TextBox>(kSpot, "KillDD").back_color().has_value(), marked) << "no date for the air";
    Click(kSpot, "Command9");
    EXPECT_EQ(FileText("QXDATA/S42.DAT"), before);
  }
  Click(kSpot, "Command1");
  Type(kSpot, "KillMM", "05");
  EXPECT_TRUE(Find<TextBox>(kSpot, "KillYY").back_color().has_value());
  Type(kSpot, "KillDD", "31");
  Type(kSpot, "KillYY", "27");
  EXPECT_FALSE(Find<TextBox>(kSpot, "KillYY").back_color().has_value());
}

TEST_F(EntryScreens, Quotes_NeverReachADataField) {
  BeginNew(kSong, "1");
  for (const char* box : {"Text3", "Text5", "Text8"}) {
    QueueAnswer("OK");
    Type(kSong, box, "A\"");
    EXPECT_EQ(boxes().back().title, box == std::string("Text8") ? "No Quotes! " : "No Quotes! ");
    EXPECT_EQ(Shown(kSong, box), "") << box;
    Find<TextBox>(kSong, box).Edit("\"");
    EXPECT_EQ(Shown(kSong, box), "") << box;
  }
}

TEST_F(EntryScreens, FromYear_IsTestedAtItsEndsOnly) {
  BeginNew(kSong, "1");
  Find<TextBox>(kSong, "FromYear").Edit("19x5");
  EXPECT_EQ(Shown(kSong, "FromYear"), "19x5");
  for (const char* refused : {"195x", "19\"5"}) {
    Find<TextBox>(kSong, "FromYear").Edit(refused);
    EXPECT_EQ(Shown(kSong, "FromYear"), "") << refused;
  }
}

TEST_F(EntryScreens, Drive_WithoutTheFolderCanGetIt) {
  std::filesystem::create_directories(Host("..") / "D");
  BeginNew(kSpot, "1");
  auto& drives = Find<DriveListBox>(kSpot, "Drive1");
  const int d =
      static_cast<int>(std::find(drives.rows().begin(), drives.rows().end(), "D:") - drives.rows().begin());
  QueueAnswer("No");
  drives.PersonSelects({d});
  EXPECT_EQ(boxes().back().title, "The QXWAVE Folder Doesn't Exist on Drive D");
  EXPECT_EQ(drives.drive(), 'C');
  QueueAnswer("Yes");
  QueueAnswer("OK");
  drives.PersonSelects({d});
  EXPECT_EQ(boxes().back().title, "About to Attempt QXWAVE Folder Creation");
  EXPECT_EQ(Shown(kSpot, "Text1"), "D:\\qxwave");
  Click(kSpot, "Command9");
  EXPECT_THAT(FileText("QXDATA/S1.DAT"), HasSubstr("\"S1\"\r\n\"D\"\r\n"));
}

TEST_F(EntryScreens, Drive_IsLookedAtOnceWhenItIsLeft) {
  BeginNew(kSpot, "1");
  auto& drives = Find<DriveListBox>(kSpot, "Drive1");
  drives.LeaveFocus();
  EXPECT_EQ(Shown(kSpot, "Text1"), "C:\\qxwave");
  std::filesystem::remove_all(Host("QXWAVE"));
  Click(kSpot, "Command8");
  Click(kSpot, "Command1");
  QueueAnswer("No");
  drives.LeaveFocus();
  EXPECT_EQ(boxes().back().title, "The QXWAVE Folder Doesn't Exist on Drive C");
  EXPECT_EQ(station_.FindScreen(kSpot)->focused(), &drives);
  drives.LeaveFocus();
  EXPECT_EQ(boxes().size(), 1U) << "nobody is kept there";
}

TEST_F(EntryScreens, Drive_ThatIsNotThereIsToldAndNotTaken) {
  BeginNew(kSpot, "1");
  auto& drives = Find<DriveListBox>(kSpot, "Drive1");
  const int d =
      static_cast<int>(std::find(drives.rows().begin(), drives.rows().end(), "D:") - drives.rows().begin());
  QueueAnswer("OK");
  drives.PersonSelects({d});
  EXPECT_EQ(boxes().back().title, "An Error Has Occurred: Err = 71");
  EXPECT_EQ(drives.drive(), 'C');
  std::filesystem::remove_all(Host("QXWAVE"));
  Click(kSpot, "Command9", {"No"});
  EXPECT_FALSE(Exists("QXDATA/S1.DAT")) << "no folder for the audio, no record";
  EXPECT_TRUE(Enabled(kSpot, "Command9"));
}

TEST_F(EntryScreens, Audition_PlaysAndTellsThePosition) {
  AddSpot("S42", 30000);
  OpenEntry(kSpot);
  Click(kSpot, "Command2", {"S42"});
  EXPECT_EQ(boxes().back().offered, "S|") << "the beginning of an id";
  EXPECT_EQ(Shown(kSpot, "Text1"), "C:\\QXWAVE\\S42.wav");
  EXPECT_FALSE(Enabled(kSpot, "Text3"));
  Advance(1050ms);
  EXPECT_EQ(Shown(kSpot, "Text1"), "Playback Position = 1.05 Seconds");
  Click(kSpot, "Command8");
  EXPECT_EQ(Find<MediaControl>(kSpot, "MMControl1").Mode(), ChannelMode::kNotOpen);
  EXPECT_EQ(Shown(kSpot, "Text1"), kReady);
  Click(kSpot, "Command2", {""});
  DoubleClick(kSpot, "File1", "S42.DAT");
  EXPECT_EQ(aired().back().id, "S42") << "from the list";
  AddSpot("S43", 30000);
  std::filesystem::remove(Host("QXWAVE/S43.wav"));
  Find<FileListBox>(kSpot, "File1").Refresh();
  DoubleClick(kSpot, "File1", "S43.DAT");
  Advance(1s);
  EXPECT_EQ(Shown(kSpot, "Text1"), "There is no audio to play: C:\\QXWAVE\\S43.wav") << "it stays readable";
}

TEST_F(EntryScreens, Audition_OfASongTakesItsMp3AndEndsByDone) {
  AddSong("M1", 30000);
  std::filesystem::rename(Host("QXWAVE/M1.wav"), Host("QXWAVE/M1.mp3"));
  OpenEntry(kSong);
  std::string told;
  station_.media().on_event = [&](const simulation::ChannelEvent&) { told += Shown(kSong, "Text6"); };
  Click(kSong, "Command2", {"M1"});
  station_.media().on_event = nullptr;
  EXPECT_EQ(told, "wait...") << "while it is opened, and no longer";
  EXPECT_EQ(Shown(kSong, "Text1"), "C:\\QXWAVE\\M1.mp3");
  EXPECT_EQ(Find<Button>(kSong, "Command9").caption(), "&Done");
  EXPECT_FALSE(Find<TextBox>(kSong, "Text6").visible()) << "the file is open";
  Click(kSong, "Command9");
  EXPECT_EQ(Shown(kSong, "Text1"), kReady);
  EXPECT_TRUE(IsOpen(kSong));
}

TEST_F(EntryScreens, Audition_FaultsAreToldAndOnlyAnAbnormalOneEndsTheProgram) {
  OpenEntry(kSpot);
  Click(kSpot, "Command2", {"S9", "OK"});
  EXPECT_EQ(boxes().back().title, "S9.dat Was Not Found");
  EXPECT_EQ(Shown(kSpot, "Text1"), kReady);
  PutFile("QXDATA/S9.DAT", "\"[New]\"\r\n\"S9\"\r\n");
  Click(kSpot, "Command2", {"S9", "OK"});
  EXPECT_EQ(boxes().back().title, "Abnormal Error # 62");
  EXPECT_FALSE(station_.running());
}

TEST_F(EntryScreens, EditData_SavesAndStartsOver) {
  AddLiner("L5", 4000);
  OpenEntry(kLiner);
  Click(kLiner, "Command4", {"L5"});
  EXPECT_EQ(Find<Button>(kLiner, "Command9").caption(), "&Save");
  Fill(kLiner, "Text3", "Renamed");
  Click(kLiner, "Command9");
  EXPECT_EQ(FileText("QXDATA/L5.DAT"), Lines({"4", "L5", "C", "Renamed", "A", "G", "01-01-26", ""}));
  EXPECT_TRUE(IsOpen(kLiner));
  EXPECT_EQ(Find<Button>(kLiner, "Command9").caption(), "&Record Now");
  EXPECT_FALSE(Exists("QXAIR/TEMPSPOT.DAT")) << "nothing goes to a capture";
}

TEST_F(EntryScreens, EditData_ShowsTheWholeIdAsTheFileHasIt) {
  AddSong("MABC123", 3000);
  OpenEntry(kSong);
  Click(kSong, "Command4", {"mabc123"});
  EXPECT_EQ(Id(kSong), "MABC123");
  EXPECT_GE(Find<TextBox>(kSong, "Text2").max_length(), 7) << "an editor cuts what is longer";
  Click(kSong, "Command9");
  EXPECT_THAT(FileText("QXDATA/MABC123.DAT"), StartsWith("\"3\"\r\n\"MABC123\"\r\n"));
}

TEST_F(EntryScreens, EditData_OfWhatIsNotThereAsksAgain) {
  AddSong("M1", 3000);
  OpenEntry(kSpot);
  Click(kSpot, "Command4", {"S77", "OK", "M1", "OK", ""});
  ASSERT_EQ(boxes().size(), 5U);
  EXPECT_EQ(boxes()[1].title, "SS77.dat Was Not Found") << "the letter doubled";
  EXPECT_EQ(boxes()[3].title, "SM1.dat Was Not Found") << "a song is none of this screen's";
  EXPECT_TRUE(Enabled(kSpot, "File1"));
  EXPECT_FALSE(Enabled(kSpot, "Command9"));
}

TEST_F(EntryScreens, EditData_WithoutAudioKeepsTheLength) {
  AddSpot("S42", 30000);
  std::filesystem::rename(Host("QXWAVE/S42.wav"), Host("QXWAVE/S42.mp3"));  // imported
  OpenEntry(kSpot);
  Click(kSpot, "Command4", {"S42"});
  Click(kSpot, "Command9");
  EXPECT_THAT(FileText("QXDATA/S42.DAT"), StartsWith("\"30\"\r\n"));
}

TEST_F(EntryScreens, Import_OfANewFileWritesItAndGoesOn) {
  OpenEntry(kSong);
  Click(kSong, "Command5", {"Yes"});
  EXPECT_EQ(Find<Button>(kSong, "Command9").caption(), "I&mport Now");
  Type(kSong, "Text2", "9");
  Leave(kSong, "Text2");
  Click(kSong, "Command9");
  EXPECT_THAT(FileText("QXDATA/M9.DAT"), StartsWith("\"[New]\"\r\n\"M9\"\r\n"));
  EXPECT_EQ(FileText("QXAIR/IMPORT.DAT"), "\"M9\"\r\n\"C\"\r\n\"2\"\r\n");
  EXPECT_FALSE(IsOpen(kSong));
  EXPECT_FALSE(IsOpen("RecordIt"));
}

TEST_F(EntryScreens, Import_OfAnExistingFileAsksWhetherToEditFirst) {
  AddSpot("S42", 30000);
  const std::string before = FileText("QXDATA/S42.DAT");
  OpenEntry(kSpot);
  Click(kSpot, "Command5", {"No", "Yes"});
  DoubleClick(kSpot, "File1", "S42.DAT");
  EXPECT_EQ(boxes().back().title, "(Import) File Already Exists");
  EXPECT_TRUE(Enabled(kSpot, "Text3"));
  Click(kSpot, "Command8");
  Click(kSpot, "Command5", {"No", "No"});
  DoubleClick(kSpot, "File1", "S42.DAT");
  EXPECT_EQ(FileText("QXAIR/IMPORT.DAT"), "\"S42\"\r\n\"C\"\r\n\"1\"\r\n");
  EXPECT_EQ(FileText("QXDATA/S42.DAT"), before);
  EXPECT_FALSE(IsOpen(kSpot));
}

TEST_F(EntryScreens, ReRecordLast_TakesOnlyItsOwnKind) {
  AddSpot("S42", 30000);
  OpenEntry(kSpot);
  const auto refused = [this](const char* text) {
    Click(kSpot, "Command6", {"OK"});
    EXPECT_EQ(boxes().back().text, text);
    EXPECT_EQ(boxes().back().title, "Can't Re-Record Last");
    EXPECT_EQ(Shown(kSpot, "Text1"), kReady);
  };
  refused("Sorry, There is no previous file to re-record!");
  PutFile("QXAIR/TEMPSPOT.DAT", "\"M1\"\r\n");
  refused("The last file recorded was not a Spot file!");
  OpenEntry(kLiner);
  Click(kLiner, "Command6", {"OK"});
  EXPECT_EQ(boxes().back().text, "The last file recorded was not a Liner file!");
  PutFile("QXAIR/TEMPSPOT.DAT", "\"L1\"\r\n");
  OpenEntry(kSong);
  Click(kSong, "Command6", {"OK"});
  EXPECT_EQ(boxes().back().text, "The last file recorded was not a Music file!");
  OpenEntry(kSpot);
  PutFile("QXAIR/TEMPSPOT.DAT", "\"S42\"\r\n");
  Click(kSpot, "Command6");
  EXPECT_EQ(Id(kSpot), "S42");
  EXPECT_TRUE(Enabled(kSpot, "Command9"));
}

TEST_F(EntryScreens, OldAudioOfSongsAndLiners_GoesBeforeTheCapture) {
  AddSong("M1", 3000);
  AddAudio("M1", 3000, ".mp3");
  AddLiner("L1", 3000);
  OpenEntry(kSong);
  DoubleClick(kSong, "File1", "M1.DAT");
  Click(kSong, "Command9");
  EXPECT_FALSE(Exists("QXWAVE/M1.wav"));
  EXPECT_TRUE(Exists("QXWAVE/M1.mp3")) << "only the one that would play";
  OpenEntry(kLiner);
  DoubleClick(kLiner, "File1", "L1.DAT");
  Click(kLiner, "Command9");
  EXPECT_FALSE(Exists("QXWAVE/L1.wav"));
}

TEST_F(EntryScreens, RecordThatCannotBeRead_LeavesRestartAlone) {
  PutFile("QXDATA/S9.DAT", "\"[New]\"\r\n\"S9\"\r\n");
  OpenEntry(kSpot);
  Click(kSpot, "Command1");
  QueueAnswer("OK");
  Fill(kSpot, "Text2", "9");
  EXPECT_EQ(boxes().back().title, "Abnormal Error # 62");
  for (const char* off : {"Text2", "Text3", "Command1", "Command9"}) EXPECT_FALSE(Enabled(kSpot, off)) << off;
  EXPECT_EQ(station_.FindScreen(kSpot)->focused()->name(), "Command8");
  Click(kSpot, "Command8");
  EXPECT_EQ(Shown(kSpot, "Text1"), kReady);
}

TEST_F(EntryScreens, RecordThatCannotBeWritten_EndsTheProgramAfterItsBox) {
  BeginNew(kSpot, "1");
  Block("QXDATA/S1.DAT");
  Click(kSpot, "Command9", {"OK"});
  EXPECT_THAT(boxes().back().title, StartsWith("Abnormal Error # "));
  EXPECT_FALSE(station_.running());
}

TEST_F(EntryScreens, MissingDataFolder_HasItsOwnWords) {
  const std::pair<const char*, const char*> cases[] = {{kSpot, "your Quixair Software."},
                                                       {kSong, "your Qx-Air Software."}};
  for (const auto& [screen, words] : cases) {
    BeginNew(screen, "1");
    std::filesystem::rename(Host("QXDATA"), Host("AWAY"));
    Click(screen, "Command9", {"OK"});
    std::filesystem::rename(Host("AWAY"), Host("QXDATA"));
    EXPECT_EQ(boxes().back().title, "The C:\\QXDATA Folder Can't Be Found");
    EXPECT_THAT(boxes().back().text, HasSubstr(words));
    EXPECT_EQ(Shown(screen, "Text1"), "1");
    EXPECT_TRUE(station_.running());
    Click(screen, "Command9");
    EXPECT_TRUE(Exists(screen == kSpot ? "QXDATA/S1.DAT" : "QXDATA/M1.DAT")) << "nothing typed was lost";
  }
}

}  // namespace
}  // namespace quixair::testing
