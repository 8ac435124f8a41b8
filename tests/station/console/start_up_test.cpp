#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kCleanRecord = "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n";

class ConsoleStartUp : public StationFixture {
 protected:
  Screen& Console() { return *station_.FindScreen("Console"); }
};

TEST_F(ConsoleStartUp, RestartSwitchAndRecord_DecideWhatOpens) {
  const struct {
    const char *name, *reset_on, *reset, *opens;
  } cases[] = {
      {"running Random", "\"1\"\r\n", "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n", "RandomForm1"},
      {"running Pick-List", "\"1\"\r\n", "\"1\"\r\n\"PICKLIST\"\r\n\"A.TPP\"\r\n2\r\n", "PickListForm1"},
      {"clean record", "\"1\"\r\n", kCleanRecord, ""},
      {"no run, yet a mode", "\"1\"\r\n", "\"0\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n", ""},
      {"switch off", "\"0\"\r\n", "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n", ""},
      {"switch neither", "\"yes\"\r\n", "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n", ""},
      {"switch missing", nullptr, "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n", ""},
      {"record missing", "\"1\"\r\n", nullptr, ""},
      {"record of no known mode", "\"1\"\r\n", "\"1\"\r\n\"X\"\r\n", ""},
      {"record torn behind the flag", "\"1\"\r\n", "\"1\"\r\n\"RAN", ""},
  };
  AddLibrary(3, 2, 2);
  PutTemplate("A.TPP", {"M0001", "M0002", "M0003"});
  PutFile("QXAIR/PIKMODE.DTA", "\"0\"\r\n");
  PutFile("QXAIR/STOREPIK.DTA", "\"A.TPP\"\r\n");
  for (const auto& [name, reset_on, reset, opens] : cases) {
    SCOPED_TRACE(name);
    for (const auto& [file, content] :
         {std::pair("QXAIR/RESETON.DTA", reset_on), std::pair("QXAIR/RESET.DTA", reset)}) {
      std::filesystem::remove(Host(file));
      if (content != nullptr) PutFile(file, content);
    }
    StartConsole();
    for (const char* screen : {"RandomForm1", "PickListForm1"}) {
      EXPECT_EQ(IsOpen(screen), std::string(opens) == screen) << screen;
    }
    EXPECT_TRUE(IsOpen("frmSplash")) << "the splash runs over a restart too";
    EXPECT_EQ(FileText("QXAIR/RESET.DTA"), reset == nullptr ? "" : reset) << "start-up leaves the record";
    station_.PowerCut();
  }
}

TEST_F(ConsoleStartUp, Title_CarriesTheStationLine) {
  StartConsole();
  EXPECT_EQ(Console().title(), "Quixair 4   ");
  PutFile("QXAIR/CUSTOM.DTA", "\"Radio Caf\xE9, 98.5\"\r\n");
  StartConsole();
  EXPECT_EQ(Console().title(), "Quixair 4   Radio Caf\xE9, 98.5");
}

TEST_F(ConsoleStartUp, Splash_HidesTheConsoleFor2800Milliseconds) {
  StartConsole();
  EXPECT_TRUE(IsOpen("frmSplash"));
  EXPECT_FALSE(Console().visible());
  Advance(2799ms);
  EXPECT_TRUE(IsOpen("frmSplash"));
  Advance(1ms);
  EXPECT_FALSE(IsOpen("frmSplash"));
  EXPECT_TRUE(Console().visible());

  StartConsole();
  Find<Frame>("frmSplash", "Frame1").Click();
  EXPECT_FALSE(IsOpen("frmSplash"));
  EXPECT_FALSE(Console().visible()) << "it comes in its time all the same";
  Advance(2800ms);
  EXPECT_TRUE(Console().visible());
}

TEST_F(ConsoleStartUp, NewMachine_IsPreparedOnOkAndLeftAloneOnCancel) {
  std::filesystem::remove(Host("QXAIR/REGOCX.DTA"));
  for (const char* answer : {"OK", "Cancel"}) {
    SCOPED_TRACE(answer);
    QueueAnswer(answer);
    StartConsole();
    EXPECT_EQ(boxes().back().style, 65);
    EXPECT_EQ(boxes().back().title, "Getting Ready for First Use");
    EXPECT_EQ(boxes().back().text,
              "Welcome to The Quixair.  Your software\nhas detected that this is a new install. \n"
              "Press OK to prepare your system.");
    EXPECT_EQ(IsOpen("MMregOCX"), std::string(answer) == "OK");
    EXPECT_FALSE(IsOpen("frmSplash"));
    EXPECT_TRUE(Console().visible());
  }
}

TEST_F(ConsoleStartUp, Exit_AsksAndLeavesTheCleanRecord) {
  PutFile("QXAIR/RESET.DTA", "running");
  StartConsole();
  Menu("Exit", {"Cancel"});
  EXPECT_TRUE(station_.running());
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "running");
  Menu("Exit", {"OK"});
  EXPECT_FALSE(station_.running());
  EXPECT_EQ(station_.exit_code(), 0);
  EXPECT_EQ(boxes().back().style, 33);
  EXPECT_EQ(boxes().back().text, "Are you sure you want to exit?");
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), kCleanRecord);
}

TEST_F(ConsoleStartUp, WindowClosed_CleansTheRecordUnlessThisOnceIsSpared) {
  const struct {
    const char *spare, *record_then, *spare_then;
  } cases[] = {
      {nullptr, kCleanRecord, ""},
      {"\"0\"\r\n", kCleanRecord, "\"0\"\r\n"},
      {"\"1\"\r\n", "running", "\"0\"\r\n"},
      {"1\r\n", "running", "\"0\"\r\n"},
      {"\"11\"\r\n", kCleanRecord, "\"11\"\r\n"},
  };
  for (const auto& [spare, record_then, spare_then] : cases) {
    SCOPED_TRACE(spare == nullptr ? "no file" : spare);
    PutFile("QXAIR/RESET.DTA", "running");
    if (spare != nullptr) PutFile("QXAIR/RESETRND.DTA", spare);
    StartConsole();
    station_.Do([this] { Console().CloseWindow(); });
    EXPECT_FALSE(station_.running());
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(FileText("QXAIR/RESET.DTA"), record_then);
    EXPECT_EQ(FileText("QXAIR/RESETRND.DTA"), spare_then);
  }
}

TEST_F(ConsoleStartUp, RecordThatCannotBeWritten_DoesNotHoldTheProgram) {
  StartConsole();
  std::filesystem::remove_all(Host("QXAIR"));
  Menu("Exit", {"OK"});
  EXPECT_FALSE(station_.running());
  EXPECT_EQ(station_.exit_code(), 0);
}

}  // namespace
}  // namespace quixair::testing
