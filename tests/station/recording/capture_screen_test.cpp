#include "station/recording/recording_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* kSpot = "RecordITSpot";
constexpr const char* kSong = "RecordIt";
constexpr const char* kLiner = "RecordITLiner";
constexpr const char* kSaved =
    "File Saved: Click 'Exit' for New File, 'Start' to Re-Record, 'Audition' to Listen.";

class CaptureScreens : public RecordingFixture {
 protected:
  CaptureScreens() {
    station_.capture().on_capture = [this](const std::string& file, bool began, std::int32_t length) {
      captures_.push_back(file + (began ? " began" : " " + std::to_string(length)));
    };
  }
  /// A new spot, handed over to the capture screen; `preset` is typed into the length frame.
  void HandOverSpot(std::string_view preset) {
    BeginNew("RecordSpot", "1");
    if (!preset.empty()) Type("RecordSpot", "Text6", preset);
    Click("RecordSpot", "Command9");
  }
  void HandOver(std::string_view entry, std::string_view id) {
    BeginNew(entry, id);
    Click(entry, "Command9");
  }
  std::vector<std::string> captures_;
};

TEST_F(CaptureScreens, SpotWithAPreset_EndsAndSavesItself) {
  HandOverSpot("45");
  EXPECT_EQ(Shown(kSpot, "Text2"), "S1");
  Click(kSpot, "RecordBtn");
  EXPECT_EQ(Shown(kSpot, "Text6"), "Currently Recording S1.WAV");
  EXPECT_EQ(Shown(kSpot, "Label17"), "out of 45 Secs.");
  for (const char* off : {"RecordBtn", "NowExit", "Command1", "CancelButton", "changesettingsButton"}) {
    EXPECT_FALSE(Enabled(kSpot, off)) << off;
  }
  Advance(20s);
  EXPECT_EQ(Shown(kSpot, "SecondsRecorded"), "20");
  Advance(26s);
  EXPECT_THAT(captures_, ElementsAre("S1.WAV began", "S1.WAV 45000"));
  EXPECT_EQ(Shown(kSpot, "Text6"), kSaved);
  EXPECT_THAT(FileText("QXDATA/S1.DAT"), StartsWith("\"45.0\"\r\n\"S1\"\r\n"));
  EXPECT_TRUE(Enabled(kSpot, "NowExit"));
}

TEST_F(CaptureScreens, EachPreset_IsItsLimit) {
  const struct {
    const char *preset, *label;
    std::int64_t seconds;
  } cases[] = {{"30", "out of 30 Secs.", 30},
               {"60", "out of 60 Secs.", 60},
               {"90", "out of 90 Secs.", 90},
               {"7", "out of 7 Secs.", 7},
               {"", "", 10000}};
  for (const auto& [preset, label, seconds] : cases) {
    SCOPED_TRACE(preset);
    HandOverSpot(preset);
    Click(kSpot, "RecordBtn");
    EXPECT_EQ(Shown(kSpot, "Label17"), label);
    EXPECT_EQ(Find<WaveRecorder>(kSpot, "MMWaveRecorderX").max_record_time(), std::chrono::seconds(seconds));
    Click(kSpot, "StopBtn");
    std::filesystem::remove(Host("QXDATA/S1.DAT"));
  }
}

TEST_F(CaptureScreens, StopByHand_WritesTheMeasuredLengthAndTheEmptyLines) {
  const struct {
    const char *entry, *capture, *file, *end;
  } cases[] = {{"RecordASong", kSong, "QXDATA/M5.DAT", "\"11-22-26\"\r\n\"\"\r\n\r\n\r\n"},
               {"RecordLiner", kLiner, "QXDATA/L5.DAT", "\"11-22-26\"\r\n\"\"\r\n\r\n\r\n\r\n"}};
  for (const auto& [entry, capture, file, end] : cases) {
    SCOPED_TRACE(entry);
    HandOver(entry, "5");
    Click(capture, "RecordBtn");
    Advance(12345ms);
    Click(capture, "StopBtn");
    EXPECT_THAT(FileText(file), StartsWith("\"12.3\"\r\n"));
    EXPECT_TRUE(FileText(file).ends_with(end)) << FileText(file);
    EXPECT_EQ(Shown(capture, "Text6"), kSaved);
  }
}

TEST_F(CaptureScreens, RecordingTakenAnew_KeepsWhatStandsBehindItsLines) {
  const std::vector<std::string> known = {"8.0", "M5", "C", "Artist", "Title of M5", "A", "01-01-26", "2026"};
  AddSong("M5", 30000);
  PutFile("QXDATA/M5.DAT", FileText("QXDATA/M5.DAT") + Lines({"further"}));
  for (int times = 0; times < 2; ++times) {
    OpenEntry("RecordASong");
    DoubleClick("RecordASong", "File1", "M5.DAT");
    Click("RecordASong", "Command9");
    Click(kSong, "RecordBtn");
    Advance(8s);
    Click(kSong, "StopBtn");
    EXPECT_EQ(FileText("QXDATA/M5.DAT"), Lines(known) + Lines({"further"}) + "\r\n\r\n");
  }
}

TEST_F(CaptureScreens, RecordAgain_OverwritesAndExitGoesBack) {
  HandOver("RecordASong", "5");
  for (const int seconds : {30, 12}) {
    Click(kSong, "RecordBtn");
    Advance(std::chrono::seconds(seconds));
    Click(kSong, "StopBtn");
  }
  EXPECT_THAT(FileText("QXDATA/M5.DAT"), StartsWith("\"12.0\"\r\n"));
  EXPECT_EQ(std::filesystem::file_size(Host("QXWAVE/M5.WAV")), 44U + 12U * 176400U);
  Click(kSong, "NowExit");
  EXPECT_TRUE(IsOpen("RecordASong"));
  EXPECT_FALSE(IsOpen(kSong));
}

TEST_F(CaptureScreens, NoInput_IsToldAndTheRecordStaysAsItWas) {
  HandOverSpot("30");
  const std::string before = FileText("QXDATA/S1.DAT");
  station_.capture().input_there = false;
  Click(kSpot, "RecordBtn", {"OK"});
  EXPECT_THAT(boxes().back().text, HasSubstr("The sound input is not there."));
  Advance(3s);
  EXPECT_EQ(FileText("QXDATA/S1.DAT"), before);
  EXPECT_FALSE(Exists("QXWAVE/S1.WAV"));
  EXPECT_TRUE(Enabled(kSpot, "RecordBtn"));
  EXPECT_TRUE(Enabled(kSpot, "NowExit"));
}

TEST_F(CaptureScreens, CaptureThatBreaksOff_IsSavedAndTold) {
  for (const char* screen : {kSong, kSpot}) {
    SCOPED_TRACE(screen);
    station_.capture().trouble.clear();
    if (screen == kSong) HandOver("RecordASong", "5");
    if (screen == kSpot) HandOverSpot("30");
    Click(screen, "RecordBtn");
    Advance(8s);
    station_.capture().trouble = "The disk is full.";
    station_.capture().BreakOff();
    QueueAnswer("OK");
    Advance(1500ms);
    EXPECT_EQ(boxes().back().text, "The disk is full.");
    EXPECT_THAT(FileText(screen == kSong ? "QXDATA/M5.DAT" : "QXDATA/S1.DAT"), StartsWith("\"8.0\"\r\n"));
    EXPECT_TRUE(Enabled(screen, "NowExit")) << "the operator is not locked in";
  }
}

TEST_F(CaptureScreens, DataFileThatCannotBeWritten_IsToldAndStopTriesAgain) {
  HandOver("RecordASong", "5");
  Click(kSong, "RecordBtn");
  Advance(8s);
  std::filesystem::remove(Host("QXDATA/M5.DAT"));
  Block("QXDATA/M5.DAT");
  Click(kSong, "StopBtn", {"OK"});
  EXPECT_THAT(Shown(kSong, "Text6"), StartsWith("The data file was not written"));
  EXPECT_TRUE(Exists("QXWAVE/M5.WAV"));
  EXPECT_TRUE(station_.running());
}

class SpotStoppedByHand : public CaptureScreens {
 protected:
  SpotStoppedByHand() {
    HandOverSpot("30");
    Click(kSpot, "RecordBtn");
    Advance(8500ms);
  }
};

TEST_F(SpotStoppedByHand, AuditionBegunAtOnce_PlaysOnWhileTheDataIsWrittenAgain) {
  Click(kSpot, "StopBtn");
  PutFile("QXWAVE/S1.WAV", "8500");
  Click(kSpot, "Command1");
  auto& channel = Find<MediaControl>(kSpot, "MMControl1");
  channel.ClickPlay();
  std::filesystem::remove(Host("QXDATA/S1.DAT"));
  Advance(2s);
  EXPECT_THAT(FileText("QXDATA/S1.DAT"), StartsWith("\"8.5\"")) << "written again";
  EXPECT_EQ(channel.Mode(), ChannelMode::kPlaying);
  EXPECT_EQ(Shown(kSpot, "PlayPos"), "2 Seconds");
}

TEST_F(SpotStoppedByHand, NextSpotSentHereAtOnce_KeepsItsOwnLength) {
  Click(kSpot, "StopBtn");
  Menu("Spots");
  Click("RecordSpot", "Command1");
  Fill("RecordSpot", "Text2", "2");
  Click("RecordSpot", "Command9");
  EXPECT_EQ(Shown(kSpot, "Text2"), "S2");
  Advance(2s);
  EXPECT_THAT(FileText("QXDATA/S2.DAT"), StartsWith("\"[New]\""));
}

TEST_F(SpotStoppedByHand, DataFileBusyForAMoment_IsToldOnceAndWrittenTheSecondTime) {
  std::filesystem::rename(Host("QXDATA"), Host("AWAY"));
  station_.dialogs().on_box = [this](const auto&) { Advance(1500ms); };
  Click(kSpot, "StopBtn", {"OK"});
  station_.dialogs().on_box = nullptr;
  EXPECT_EQ(boxes().size(), 1U) << "and none over it";
  Click(kSpot, "RecordBtn");
  Advance(3s);
  Click(kSpot, "StopBtn", {"OK"});
  std::filesystem::rename(Host("AWAY"), Host("QXDATA"));
  Advance(1s);
  EXPECT_THAT(FileText("QXDATA/S1.DAT"), StartsWith("\"3.0\""));
  EXPECT_EQ(Shown(kSpot, "Text6"), kSaved);
}

TEST_F(CaptureScreens, WindowOrProgramClosedInMidCapture_SavesWhatThereIs) {
  for (const char* closed : {kSong, "Console"}) {
    SCOPED_TRACE(closed);
    captures_.clear();
    HandOver("RecordASong", "5");
    Click(kSong, "RecordBtn");
    Advance(8s);
    station_.Do([this, closed] { station_.FindScreen(closed)->CloseWindow(); });
    EXPECT_THAT(captures_, ElementsAre("M5.WAV began", "M5.WAV 8000"));
    EXPECT_THAT(FileText("QXDATA/M5.DAT"), StartsWith("\"8.0\"\r\n"));
    std::filesystem::remove(Host("QXDATA/M5.DAT"));
  }
  EXPECT_FALSE(station_.running());
}

TEST_F(CaptureScreens, RecordSentToAnOpenCapture_IsTheOneThatIsRecorded) {
  HandOver("RecordASong", "5");
  Menu("Music");
  Click("RecordASong", "Command1");
  Type("RecordASong", "Text2", "6");
  Leave("RecordASong", "Text2");
  Click("RecordASong", "Command9");
  EXPECT_EQ(Shown(kSong, "Text2"), "M6");
  Click(kSong, "RecordBtn");
  Advance(2s);
  Click(kSong, "StopBtn");
  EXPECT_THAT(captures_, ElementsAre("M6.WAV began", "M6.WAV 2000"));
  EXPECT_THAT(FileText("QXDATA/M5.DAT"), StartsWith("\"[New]\""));
}

TEST_F(CaptureScreens, RecordNowWhileACaptureRuns_IsRefusedBeforeTheAudioGoes) {
  HandOver("RecordASong", "5");
  Click(kSong, "RecordBtn");
  Advance(2s);
  Menu("Music");
  Click("RecordASong", "Command6");
  Click("RecordASong", "Command9", {"OK"});
  EXPECT_EQ(boxes().back().title, "A Recording Is Being Made");
  EXPECT_TRUE(Exists("QXWAVE/M5.WAV"));
  Click(kSong, "StopBtn");
  Click("RecordASong", "Command9");
  EXPECT_FALSE(Exists("QXWAVE/M5.WAV"));
  EXPECT_EQ(Shown(kSong, "Text2"), "M5");
}

TEST_F(CaptureScreens, CancelErase_TakesBothFilesAfterTheQuestion) {
  HandOver("RecordASong", "5");
  Click(kSong, "RecordBtn");
  Advance(8s);
  Click(kSong, "StopBtn");
  Click(kSong, "CancelButton", {"Cancel"});
  EXPECT_EQ(boxes().back().text,
            "You are about to erase M5 and\nall data associated with this file.  Do you wish to continue?");
  EXPECT_TRUE(Exists("QXDATA/M5.DAT"));
  Click(kSong, "CancelButton", {"OK"});
  EXPECT_FALSE(Exists("QXDATA/M5.DAT"));
  EXPECT_FALSE(Exists("QXWAVE/M5.WAV"));
  EXPECT_TRUE(IsOpen("RecordASong"));
}

TEST_F(CaptureScreens, Format_IsKeptBySaveAloneAndTakenAtStart) {
  HandOver("RecordASong", "5");
  EXPECT_EQ(Shown(kSong, "Label5"), "PCM  44100 Hz, 16 Bit, Stereo");
  Click(kSong, "changesettingsButton", {"22050 8 1"});
  EXPECT_EQ(Shown(kSong, "Label5"), "PCM  22050 Hz, 8 Bit, Mono");
  Click(kSong, "SaveSettingsButton");
  Click(kSong, "RecordBtn");
  Advance(2s);
  Click(kSong, "StopBtn");
  EXPECT_EQ(std::filesystem::file_size(Host("QXWAVE/M5.WAV")), 44U + 2U * 22050U);
  station_.capture().save_fault = RunTimeError::kPathFileAccess;
  Click(kSong, "SaveSettingsButton", {"OK"});
  EXPECT_THAT(boxes().back().text, HasSubstr("The format was not saved."));
}

TEST_F(CaptureScreens, NextNewRecording_IsOfferedTheDriveOfTheLastCapture) {
  std::filesystem::create_directories(Host("..") / "D" / "QXWAVE");
  BeginNew("RecordSpot", "1");
  auto& drives = Find<DriveListBox>("RecordSpot", "Drive1");
  drives.PersonSelects({1});
  Click("RecordSpot", "Command9");
  Menu("Spots");  // open beside the capture
  Select("RecordSpot", "File1", 0);
  PutFile("QXDATA/S0.DAT", "");
  Click(kSpot, "RecordBtn");
  Advance(2s);
  Click(kSpot, "StopBtn");
  Click(kSpot, "NowExit");
  EXPECT_THAT(Rows("RecordSpot", "File1"), ElementsAre("S0.DAT", "S1.DAT"));
  EXPECT_EQ(Find<ListBox>("RecordSpot", "File1").selected_text(), "S1.DAT") << "chosen as before";
  Click("RecordSpot", "Command1");
  EXPECT_EQ(Find<DriveListBox>("RecordSpot", "Drive1").drive(), 'D');
  Type("RecordSpot", "Text2", "2");
  Leave("RecordSpot", "Text2");
  Click("RecordSpot", "Command9");
  EXPECT_THAT(FileText("QXDATA/S2.DAT"), HasSubstr("\"S2\"\r\n\"D\"\r\n"));
}

class TimeAnnouncements : public RecordingFixture {
 protected:
  void OpenAutoTime() {
    StartConsole();
    Menu("AutoTimeRecord");
  }
};

TEST_F(TimeAnnouncements, HourAndMinute_NameTheRecording) {
  OpenAutoTime();
  Click("AutoTime", "Command1", {"OK"});
  EXPECT_EQ(boxes().back().title, "Invalid Time");
  Select("AutoTime", "List1", 0);
  Click("AutoTime", "Command1", {"OK"});
  EXPECT_EQ(boxes().back().title, "Invalid Time") << "no minute";
  Select("AutoTime", "List2", 22);
  EXPECT_EQ(Shown("AutoTime", "Label4"), "Recording Name = T0122.WAV");
  Click("AutoTime", "Command1");
  EXPECT_EQ(FileText("QXAIR/TIMERECORD.DTA"), "\"T0122.WAV\"\r\n\"01\"\r\n\"22\"\r\n");
  EXPECT_EQ(Shown("RecordTimes", "Text2"), "T0122.WAV");
  EXPECT_EQ(Shown("RecordTimes", "Label4"), "01:22");
  Click("RecordTimes", "RecordBtn");
  Advance(3s);
  Click("RecordTimes", "StopBtn");
  EXPECT_EQ(Shown("RecordTimes", "Text6"), kSaved);
  EXPECT_TRUE(Exists("QXTIME/T0122.WAV"));
  Click("RecordTimes", "NowExit");
  EXPECT_EQ(Find<ListBox>("AutoTime", "List1").selected_text(), "01");
  EXPECT_EQ(Find<ListBox>("AutoTime", "List2").selected_text(), "22");
  EXPECT_THAT(Rows("AutoTime", "File1"), ElementsAre("T0122.WAV"));
}

TEST_F(TimeAnnouncements, CaptureThatEndsWithTheChoiceOpen_IsInItsList) {
  OpenAutoTime();
  Select("AutoTime", "List1", 0);
  Select("AutoTime", "List2", 22);
  Click("AutoTime", "Command1");
  Menu("AutoTimeRecord");
  Click("RecordTimes", "RecordBtn");
  Advance(3s);
  Click("RecordTimes", "StopBtn");
  Select("AutoTime", "List1", 4);
  Click("RecordTimes", "NowExit");
  EXPECT_THAT(Rows("AutoTime", "File1"), ElementsAre("T0122.WAV"));
  EXPECT_EQ(Shown("AutoTime", "Label4"), "Recording Name = T0522.WAV") << "what was chosen stays";
}

TEST_F(TimeAnnouncements, AnnouncementSentToAnOpenCapture_IsTakenAndRefusedWhileOneRuns) {
  for (const char* name : {"T0122.WAV", "T0123.WAV"}) PutFile("QXTIME/" + std::string(name), "2500");
  OpenAutoTime();
  DoubleClick("AutoTime", "File1", "T0122.WAV");
  for (const char* shown : {"T0123.WAV", "T0122.WAV"}) {
    Menu("AutoTimeRecord");
    DoubleClick("AutoTime", "File1", shown);
    EXPECT_EQ(Shown("RecordTimes", "Text2"), shown);
  }
  Click("RecordTimes", "RecordBtn");
  Menu("AutoTimeRecord");
  QueueAnswer("OK");
  DoubleClick("AutoTime", "File1", "T0123.WAV");
  EXPECT_EQ(boxes().back().title, "A Recording Is Being Made");
  EXPECT_TRUE(IsOpen("AutoTime"));
  EXPECT_EQ(Shown("RecordTimes", "Text2"), "T0122.WAV");
}

TEST_F(TimeAnnouncements, ExistingOne_IsRecordedAnewOrHeardByDoubleClick) {
  PutFile("QXTIME/T1205.WAV", "2500");
  OpenAutoTime();
  DoubleClick("AutoTime", "File1", "T1205.WAV");
  EXPECT_EQ(Shown("RecordTimes", "Text2"), "T1205.WAV");
  EXPECT_EQ(FileText("QXAIR/TIMERECORD.DTA"), "\"T1205.WAV\"\r\n\"\"\r\n\"\"\r\n");
  Click("RecordTimes", "NowExit");
  EXPECT_EQ(Shown("AutoTime", "Text1"), "Select a Time to Record, Hour first, then Minute");
  Click("AutoTime", "Command3");
  EXPECT_EQ(Shown("AutoTime", "Text1"), "Double Click an Existing File To Audition");
  for (const char* off : {"List1", "List2", "Command1", "Command2", "Command3"})
    EXPECT_FALSE(Enabled("AutoTime", off)) << off;
  DoubleClick("AutoTime", "File1", "T1205.WAV");
  EXPECT_EQ(Shown("AutoTime", "Text1"), "Length = 2.5  [Press DONE to re-start]");
  EXPECT_EQ(aired().back().id, "T1205");
  Click("AutoTime", "Command4");
  EXPECT_EQ(Find<MediaControl>("AutoTime", "MMControl1").Mode(), ChannelMode::kNotOpen);
  EXPECT_TRUE(Enabled("AutoTime", "Command1"));
  EXPECT_EQ(Find<FileListBox>("AutoTime", "File1").hint(), "Double Click to Audition");
}

TEST_F(TimeAnnouncements, Erase_TakesTheRecording) {
  PutFile("QXTIME/T1205.WAV", "2500");
  OpenAutoTime();
  DoubleClick("AutoTime", "File1", "T1205.WAV");
  Click("RecordTimes", "CancelButton", {"OK"});
  EXPECT_FALSE(Exists("QXTIME/T1205.WAV"));
  EXPECT_TRUE(IsOpen("AutoTime"));
}

}  // namespace
}  // namespace quixair::testing
