#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class SmallDialogs : public StationFixture {
 protected:
  /// A console past its splash, and the screen that the item opens.
  void OpenByMenu(std::string_view item) {
    StartConsole();
    Advance(2800ms);
    Menu(item);
  }
};

class AutostartScreen : public SmallDialogs {
 protected:
  void Choose(const char* option) { Find<OptionButton>("Autostart", option).PersonSelects(); }
  std::string Selected() {
    std::string selected;
    for (const char* option : {"Option1", "Option2"}) {
      if (Find<OptionButton>("Autostart", option).selected()) selected += option;
    }
    return selected;
  }
};

TEST_F(AutostartScreen, ShowsWhatTheFileHolds) {
  const std::pair<const char*, const char*> cases[] = {
      {"\"1\"\r\n", "Option1"}, {"\"0\"\r\n", "Option2"}, {"\"2\"\r\n", ""}, {"", ""}};
  for (const auto& [content, option] : cases) {
    PutFile("QXAIR/RESETON.DTA", content);
    OpenByMenu("AutoRestart");
    EXPECT_EQ(Selected(), option) << content;
  }
  EXPECT_EQ(station_.FindScreen("Autostart")->title(), "Automatic Restart Status");
}

TEST_F(AutostartScreen, Done_KeepsTheSwitchAndSetsTheStartOfTheProgram) {
  const struct {
    const char* option;
    const char* content;
    bool starts;
  } cases[] = {{"Option1", "\"1\"\r\n", true}, {"Option2", "\"0\"\r\n", false}};
  for (const auto& [option, content, starts] : cases) {
    SCOPED_TRACE(option);
    OpenByMenu("AutoRestart");
    Choose(option);
    EXPECT_THAT(session_starts_, IsEmpty()) << "nothing is set before Done";
    Click("Autostart", "Command1");
    EXPECT_FALSE(IsOpen("Autostart"));
    EXPECT_EQ(FileText("QXAIR/RESETON.DTA"), content);
    EXPECT_THAT(session_starts_, ElementsAre(starts));
    OpenByMenu("AutoRestart");
    Click("Autostart", "Command1");
    EXPECT_THAT(session_starts_, ElementsAre(starts, starts)) << "also when it stood so before";
    session_starts_.clear();
  }
}

TEST_F(AutostartScreen, DoneWithNeitherOption_LeavesEverythingAsItIs) {
  PutFile("QXAIR/RESETON.DTA", "\"maybe\"\r\n");
  OpenByMenu("AutoRestart");
  Click("Autostart", "Command1");
  EXPECT_FALSE(IsOpen("Autostart"));
  EXPECT_EQ(FileText("QXAIR/RESETON.DTA"), "\"maybe\"\r\n");
  EXPECT_THAT(session_starts_, IsEmpty());
}

TEST_F(AutostartScreen, StartThatCannotBeSet_IsToldOnceAndTheSwitchIsKept) {
  station_.session_start().fault = RunTimeError::kPermissionDenied;
  for (const auto& [option, content] : {std::pair{"Option1", "\"1\"\r\n"}, {"Option2", "\"0\"\r\n"}}) {
    const std::size_t boxes_before = boxes().size();
    QueueAnswer("OK");
    OpenByMenu("AutoRestart");
    Choose(option);
    Click("Autostart", "Command1");
    EXPECT_EQ(FileText("QXAIR/RESETON.DTA"), content);
    ASSERT_EQ(boxes().size(), boxes_before + 1);
    EXPECT_THAT(boxes().back().text, HasSubstr("[Error 70]"));
    EXPECT_FALSE(IsOpen("Autostart"));
  }
  EXPECT_THAT(boxes().front().text, HasSubstr("will not start"));
  EXPECT_THAT(boxes().back().text, HasSubstr("will still start"));
}

TEST_F(AutostartScreen, SwitchThatCannotBeKept_IsToldOnceAndTheStartIsLeftAlone) {
  OpenByMenu("AutoRestart");
  station_.files().Fail(simulation::FileAct::kWrite, "*", RunTimeError::kPathFileAccess);
  QueueAnswer("OK");
  Choose("Option1");
  Click("Autostart", "Command1");
  ASSERT_EQ(boxes().size(), 1U);
  EXPECT_THAT(boxes().front().text, HasSubstr("[Error 75]"));
  EXPECT_THAT(session_starts_, IsEmpty());
}

class CustomInformationScreen : public SmallDialogs {
 protected:
  void SetUp() override {
    PutFile("QXAIR/CUSTOM.DTA", "\"Old line\"\r\n");
    OpenByMenu("CustomInfo");
  }
  TextBox& Text() { return Find<TextBox>("CustomInformation", "Text1"); }
  std::string ConsoleTitle() { return station_.FindScreen("Console")->title(); }
};

TEST_F(CustomInformationScreen, Done_KeepsTheLineAndChangesTheTitleAtOnce) {
  EXPECT_EQ(Shown("CustomInformation", "Text1"), "Old line");
  Text().Edit("Caf\xE9, 99.5");
  EXPECT_EQ(ConsoleTitle(), "Quixair 4   Old line");
  Click("CustomInformation", "Command1");
  EXPECT_EQ(FileText("QXAIR/CUSTOM.DTA"), "\"Caf\xE9, 99.5\"\r\n");
  EXPECT_EQ(ConsoleTitle(), "Quixair 4   Caf\xE9, 99.5");
  EXPECT_FALSE(IsOpen("CustomInformation"));
  StartConsole();
  EXPECT_EQ(ConsoleTitle(), "Quixair 4   Caf\xE9, 99.5") << "and it is there at the next start";
}

TEST_F(CustomInformationScreen, Cancel_LeavesTitleAndFileAsTheyWere) {
  Text().Edit("New line");
  Click("CustomInformation", "Command2");
  EXPECT_EQ(FileText("QXAIR/CUSTOM.DTA"), "\"Old line\"\r\n");
  EXPECT_EQ(ConsoleTitle(), "Quixair 4   Old line");
  EXPECT_FALSE(IsOpen("CustomInformation"));
}

TEST_F(CustomInformationScreen, QuotesAndLineEnds_NeverReachTheFileAndTheLimitHoldsNobody) {
  const std::string rest(60, 'x');
  Text().Edit("The \"Big\" One\r\nFM");
  for (const char key : "\"!" + rest) Text().TypeKey(key);
  Click("CustomInformation", "Command1");
  EXPECT_EQ(FileText("QXAIR/CUSTOM.DTA"), "\"The Big OneFM!" + rest + "\"\r\n");
}

TEST_F(CustomInformationScreen, LineThatCannotBeKept_IsToldAndTheTitleStays) {
  station_.files().Fail(simulation::FileAct::kWrite, "*", RunTimeError::kPathFileAccess);
  QueueAnswer("OK");
  Text().Edit("New line");
  Click("CustomInformation", "Command1");
  ASSERT_EQ(boxes().size(), 1U);
  EXPECT_THAT(boxes().front().text, HasSubstr("[Error 75]"));
  EXPECT_EQ(ConsoleTitle(), "Quixair 4   Old line");
}

class HelpScreen : public SmallDialogs {};

constexpr std::pair<const char*, const char*> kDocuments[] = {
    {"Command1", "MAN40COV.DOC"}, {"Command2", "MAN40S1.DOC"},  {"Command3", "MAN40S2.DOC"},
    {"Command4", "MAN40S3.DOC"},  {"Command5", "MAN40S4.DOC"},  {"Command6", "MAN40S5.DOC"},
    {"Command9", "MAN40S6.DOC"},  {"Command10", "MAN40S7.DOC"}, {"Command11", "MAN40S8.DOC"},
    {"Command7", "v3man.txt"}};

TEST_F(HelpScreen, EachButton_OpensItsDocumentOrNamesTheOneThatIsNotThere) {
  OpenByMenu("UserManua");
  for (const auto& [button, document] : kDocuments) {
    SCOPED_TRACE(button);
    const std::string path = "C:\\QXAIR\\" + std::string(document);
    runs_.clear();
    Click("QXHelp", button, {"OK"});
    EXPECT_THAT(boxes().back().text, HasSubstr(path));
    EXPECT_THAT(runs_, IsEmpty());
    PutFile("QXAIR/" + std::string(document), "text");
    Click("QXHelp", button);
    EXPECT_THAT(runs_, ElementsAre("C:\\Program Files\\Accessories\\WordPad.exe " + path));
  }
}

class AboutScreen : public SmallDialogs {
 protected:
  void SetUp() override { OpenByMenu("About"); }
};

TEST_F(AboutScreen, ShowsTheVersionAndNamesTheMaker) {
  EXPECT_EQ(Shown("frmAbout", "lblVersion"), "Version 4.0");
  Click("frmAbout", "cmdContact", {"OK"});
  EXPECT_THAT(boxes().front().text, HasSubstr("Quixair Works"));
  Click("frmAbout", "cmdOK");
  EXPECT_FALSE(IsOpen("frmAbout"));
}

TEST_F(AboutScreen, SystemInformation_RunsWhereThereIsAProgramForItElseTheBoxSaysSo) {
  Click("frmAbout", "cmdSysInfo");
  EXPECT_THAT(runs_, ElementsAre("MSINFO32.EXE"));
  EXPECT_THAT(boxes(), IsEmpty());
  station_.programs().knows_all = false;
  Click("frmAbout", "cmdSysInfo", {"OK"});
  EXPECT_EQ(runs_.size(), 1U);
  ASSERT_EQ(boxes().size(), 1U);
  EXPECT_EQ(boxes().front().text, "System Information Is Unavailable At This Time");
}

}  // namespace
}  // namespace quixair::testing
