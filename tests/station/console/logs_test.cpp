#include "station/console/logs.h"

#include <gtest/gtest.h>

#include "script/script_language.h"
#include "station/platform/civil_time.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class Logs : public StationFixture {
 protected:
  Status Verify(std::string_view id, std::string_view field4) {
    const CivilTime now = station_.time().Now();
    return LogVerification(station_.files(), now, id, LogDescription(id, field4), HourMinuteSecondAmPm(now),
                           ModeLetter::kPickList);
  }
};

TEST_F(Logs, ErrorLines_StandByteForByte) {
  SetClock("2001-03-07 13:07:33");
  const struct {
    ModeLetter mode;
    const char* text;
    const char* line;
  } cases[] = {
      {ModeLetter::kPickList, "MON.TPT Not Found!", "P 03-07-01 1:07:33 pMON.TPT Not Found!"},
      {ModeLetter::kRandom, " S1042 [Start Date is 1 days away]",
       "R 03-07-01 1:07:33 p S1042 [Start Date is 1 days away]"},
      {ModeLetter::kPickList, " S1042 [Kill Date has Passed by -3 days]",
       "P 03-07-01 1:07:33 p S1042 [Kill Date has Passed by -3 days]"},
      {ModeLetter::kRandom, " C:\\QXWAVE\\M1.wav = Empty!!!",
       "R 03-07-01 1:07:33 p C:\\QXWAVE\\M1.wav = Empty!!!"},
      {ModeLetter::kRandom, " Competing Overlap Aborted", "R 03-07-01 1:07:33 p Competing Overlap Aborted"},
      {ModeLetter::kRandom, "  Auto-Restart Complete: 13:07:33  3/7/2001",
       "R 03-07-01 1:07:33 p  Auto-Restart Complete: 13:07:33  3/7/2001"},
  };
  std::string expected;
  for (const auto& [mode, text, line] : cases) {
    ASSERT_TRUE(LogError(station_.files(), ErrorLineStart(mode, station_.time().Now()) + text).ok());
    expected += '"' + std::string(line) + "\"\r\n";
    EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"), expected);
  }
}

TEST_F(Logs, VerificationLine_StandsByteForByte) {
  SetClock("2001-03-07 13:07:33");
  ASSERT_TRUE(Verify("S1042", "Fall Sale").ok());
  EXPECT_EQ(FileText("QXTEMPLT/Wed.LOG"), "\"03-07-2001\",\"01:07:33 PM\",\"S1042\",\"Fall Sale\",\"P\"\r\n");
}

TEST_F(Logs, RunAcrossMidnight_GoesOnInTheNextDaysFile) {
  PutFile("QXTEMPLT/Mon.LOG", "last week's\r\n");
  SetClock("2026-11-22 23:59:59");
  ASSERT_TRUE(Verify("M0001", "Artist").ok());
  Advance(1s);
  ASSERT_TRUE(Verify("LL0100", "Title").ok());
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG"), "\"11-22-2026\",\"11:59:59 PM\",\"M0001\",\"Artist\",\"P\"\r\n");
  EXPECT_EQ(FileText("QXTEMPLT/Mon.LOG"),
            "last week's\r\n\"11-23-2026\",\"12:00:00 AM\",\"LL0100\",\"*LEGAL I.D.*\",\"P\"\r\n");
}

TEST_F(Logs, FullDisk_Is61AndTheNextLineTriesAgain) {
  std::filesystem::create_symlink("/dev/full", Host("QXTEMPLT/Sun.LOG"));
  EXPECT_EQ(Verify("M0001", "Artist").number(), 61);
  std::filesystem::remove(Host("QXTEMPLT/Sun.LOG"));
  EXPECT_TRUE(Verify("M0001", "Artist").ok());
}

TEST(LogRules, SpotsSongsAndLegalIds_AreVerified) {
  const struct {
    const char* id;
    bool verified;
    const char* description;
  } cases[] = {
      {"S1042", true, "field 4"},    {"s1", true, "field 4"},          {"M0117", true, "field 4"},
      {"m1", true, "field 4"},       {"LL0100", true, "*LEGAL I.D.*"}, {"lL1", true, "*LEGAL I.D.*"},
      {"Ll1", true, "*LEGAL I.D.*"}, {"ll1", true, "*LEGAL I.D.*"},    {"L0100", false, "field 4"},
      {"LM1", false, "field 4"},     {">PAUSE<", false, "field 4"},    {">TIME<", false, "field 4"},
      {"*S1042", false, "field 4"},  {"", false, "field 4"},           {"06:30 PM", false, "field 4"},
  };
  for (const auto& [id, verified, description] : cases) {
    EXPECT_EQ(IsVerified(id), verified) << id;
    EXPECT_EQ(LogDescription(id, "field 4"), description) << id;
  }
}

class ErrorLogScreen : public StationFixture {
 protected:
  ErrorLogScreen() {
    StartConsole();
    Menu("ViewErrorLog");
  }
};

TEST_F(ErrorLogScreen, View_RunsTheEditorOnTheLog) {
  Click("ErrorLog", "Command1");
  EXPECT_EQ(runs_,
            (std::vector<std::string>{"C:\\Program Files\\Accessories\\wordpad.exe C:\\QXAIR\\QXERROR.LOG"}));
  Click("ErrorLog", "Command3");
  EXPECT_FALSE(IsOpen("ErrorLog"));
}

TEST_F(ErrorLogScreen, Clear_AsksAndDeletesOnOkOnly) {
  PutFile("QXAIR/QXERROR.LOG", "line");
  QueueAnswer("Cancel");
  Click("ErrorLog", "Command2");
  EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"), "line");
  QueueAnswer("OK");
  Click("ErrorLog", "Command2");
  EXPECT_FALSE(std::filesystem::exists(Host("QXAIR/QXERROR.LOG")));
  EXPECT_EQ(boxes().back().title, "Clear Error Log");
  EXPECT_EQ(boxes().back().text, "Do you really want to clear the entire error log?");
  EXPECT_EQ(boxes().back().style, 33);
  QueueAnswer("OK");
  Click("ErrorLog", "Command2");
  EXPECT_EQ(boxes().size(), 3U) << "nothing to clear, and no word of it";
}

TEST_F(ErrorLogScreen, LogThatCannotBeDeleted_IsToldAndTheProgramGoesOn) {
  std::filesystem::remove_all(Host("QXAIR"));
  QueueAnswer("OK");
  QueueAnswer("OK");
  Click("ErrorLog", "Command2");
  EXPECT_NE(boxes().back().text.find("[Error 76]"), std::string::npos);
  EXPECT_TRUE(station_.running());
}

}  // namespace
}  // namespace quixair::testing
