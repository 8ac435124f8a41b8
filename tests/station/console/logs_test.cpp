#include "station/console/logs.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class Logs : public StationFixture {};

TEST_F(Logs, ErrorLines_StandByteForByte) {
  SetClock("2001-03-07 13:07:33");
  const struct {
    ModeLetter mode;
    const char* text;
    const char* line;
  } cases[] = {{ModeLetter::kPickList, "MON.TPT Not Found!", "P 03-07-01 1:07:33 pMON.TPT Not Found!"},
               {ModeLetter::kRandom, " S1042 [Start Date is 1 days away]",
                "R 03-07-01 1:07:33 p S1042 [Start Date is 1 days away]"}};
  std::string expected;
  for (const auto& [mode, text, line] : cases) {
    ASSERT_TRUE(LogError(station_.files(), ErrorLineStart(mode, station_.time().Now()) + text).ok());
    expected += '"' + std::string(line) + "\"\r\n";
    EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"), expected);
  }
}

class ErrorLogScreen : public StationFixture {
 protected:
  ErrorLogScreen() { StartAt("ViewErrorLog"); }
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
  Click("ErrorLog", "Command2", {"Cancel"});
  EXPECT_EQ(FileText("QXAIR/QXERROR.LOG"), "line");
  Click("ErrorLog", "Command2", {"OK"});
  EXPECT_FALSE(std::filesystem::exists(Host("QXAIR/QXERROR.LOG")));
  EXPECT_EQ(boxes().back().title, "Clear Error Log");
  EXPECT_EQ(boxes().back().text, "Do you really want to clear the entire error log?");
  EXPECT_EQ(boxes().back().style, 33);
  Click("ErrorLog", "Command2", {"OK"});
  EXPECT_EQ(boxes().size(), 3U) << "nothing to clear, and no word of it";
}

TEST_F(ErrorLogScreen, LogThatCannotBeDeleted_IsToldAndTheProgramGoesOn) {
  std::filesystem::remove_all(Host("QXAIR"));
  Click("ErrorLog", "Command2", {"OK", "OK"});
  EXPECT_NE(boxes().back().text.find("[Error 76]"), std::string::npos);
  EXPECT_TRUE(station_.running());
}

}  // namespace
}  // namespace quixair::testing
