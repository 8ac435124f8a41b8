#include "desktop/program_table.h"

#include <gmock/gmock.h>

#include <QTest>

#include "desktop/host_programs.h"
#include "simulation/scripted_dialogs.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using desktop::CommandLine;
using desktop::HostCommand;
using desktop::ProgramTable;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(CommandLines, PathEndsBehindTheProgram_BlanksOrNot) {
  struct Case {
    const char* line;
    const char* path;
    std::vector<std::string> arguments;
  };
  const std::vector<Case> cases = {
      {"C:\\WINDOWS\\sndvol32.exe", "C:\\WINDOWS\\sndvol32.exe", {}},
      {"C:\\Progra~1\\XG-GS Enhanced Mixer\\AMIX95.EXE",
       "C:\\Progra~1\\XG-GS Enhanced Mixer\\AMIX95.EXE",
       {}},
      {"C:\\Program Files\\Accessories\\wordpad.exe C:\\QXAIR\\QXERROR.LOG",
       "C:\\Program Files\\Accessories\\wordpad.exe",
       {"C:\\QXAIR\\QXERROR.LOG"}},
      {"\"C:\\Program Files\\a b.exe\" \"two words\" three",
       "C:\\Program Files\\a b.exe",
       {"two words", "three"}},
      {"C:\\MY.EXEC\\RUN.COM now", "C:\\MY.EXEC\\RUN.COM", {"now"}},
      {"notepad file.txt", "notepad", {"file.txt"}},
      {"", "", {}},
  };
  for (const Case& each : cases) {
    const CommandLine split = desktop::SplitCommandLine(each.line);
    EXPECT_EQ(split.path, each.path) << each.line;
    EXPECT_EQ(split.arguments, each.arguments) << each.line;
  }
}

TEST(ProgramTables, LinesNameCommandsInTheOrderToTry) {
  const ProgramTable table = ProgramTable::Parse(
      "# comment\r\n"
      "MIXER.EXE = first -a \"b c\" | second   # and why\r\n"
      "folder.exe=xdg-open ~ ~/Music\n"
      "NONE.EXE =\n"
      "no entry\n",
      "/home/op");
  EXPECT_THAT(*table.Find("mixer.exe"),
              ElementsAre(HostCommand{"first", "-a", "b c"}, HostCommand{"second"}));
  EXPECT_THAT(*table.Find("FOLDER.EXE"), ElementsAre(HostCommand{"xdg-open", "/home/op", "/home/op/Music"}));
  EXPECT_THAT(*table.Find("NONE.EXE"), IsEmpty());
  EXPECT_FALSE(table.Find("OTHER.EXE").has_value());
}

TEST(ProgramTables, LineForTheDocument_GoesBeforeTheOneForAll) {
  const ProgramTable table = ProgramTable::Parse(
      "EDIT.EXE = text\n"
      "EDIT.EXE *.DOC;*.RTF = office\n"
      "MY EDIT.EXE *.DOC = other\n",
      "/");
  EXPECT_THAT(*table.Find("edit.exe", "manual.doc"), ElementsAre(HostCommand{"office"}));
  EXPECT_THAT(*table.Find("EDIT.EXE", "MANUAL.RTF"), ElementsAre(HostCommand{"office"}));
  EXPECT_THAT(*table.Find("EDIT.EXE", "QXERROR.LOG"), ElementsAre(HostCommand{"text"}));
  EXPECT_THAT(*table.Find("EDIT.EXE"), ElementsAre(HostCommand{"text"}));
  EXPECT_THAT(*table.Find("MY EDIT.EXE", "A.DOC"), ElementsAre(HostCommand{"other"}));
  EXPECT_FALSE(table.Find("MY EDIT.EXE", "A.TXT").has_value());
}

TEST(ProgramTables, DefaultsKnowEveryProgramOfTheMenu) {
  const ProgramTable table = ProgramTable::Parse(ProgramTable::Defaults(), "/home/op");
  for (const char* name : {"SNDREC32.EXE", "sndvol32.exe", "EXPLORER.EXE", "Control.exe", "MSINFO32.EXE"}) {
    EXPECT_TRUE(table.Find(name).has_value()) << name;
  }
  EXPECT_THAT(*table.Find("MMREGOCX.EXE"), IsEmpty());
  EXPECT_EQ(table.Find("WordPad.exe", "MAN40S1.DOC")->front().front(), "libreoffice");
  EXPECT_EQ(table.Find("WordPad.exe", "v3man.txt")->front().front(), "gnome-text-editor");
}

TEST(ProgramTables, MissingFile_IsMadeAndMeansTheDefaults) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "quixair" / "programs.conf";
  EXPECT_TRUE(ProgramTable::Load(file, "/home/op").Find("WORDPAD.EXE").has_value());
  EXPECT_EQ(ReadHostFile(file), ProgramTable::Defaults());
  WriteHostFile(file, "A.EXE = a\n");
  EXPECT_FALSE(ProgramTable::Load(file, "/home/op").Find("WORDPAD.EXE").has_value());
}

TEST(HostWordsTest, StationPathsBecomePathsOfTheHost) {
  const auto host = [](std::string_view path) -> std::optional<std::filesystem::path> {
    if (path == "C:\\QXAIR\\QXERROR.LOG") return "/station/QXAIR/qxerror.log";
    if (path == "C:\\QXAIR\\VOXPLAN.EXE") return "/station/QXAIR/VOXPLAN.EXE";
    return std::nullopt;
  };
  EXPECT_EQ(desktop::HostWords({"edit", "-x"}, {"wordpad.exe", {"C:\\QXAIR\\QXERROR.LOG", "/p"}}, host),
            (HostCommand{"edit", "-x", "/station/QXAIR/qxerror.log", "/p"}));
  EXPECT_EQ(desktop::HostWords({"dosbox", "%program"}, {"C:\\QXAIR\\VOXPLAN.EXE", {}}, host),
            (HostCommand{"dosbox", "/station/QXAIR/VOXPLAN.EXE"}));
  EXPECT_EQ(desktop::HostWords({"dosbox", "%program"}, {"C:\\QXAIR\\GONE.EXE", {}}, host), std::nullopt);
}

class HostProgramsTest : public StationFixture {
 protected:
  void Run(std::string_view table, std::string_view command_line) {
    desktop::HostPrograms(ProgramTable::Parse(table, "/"), station_.files(), dialogs_)
        .Run(command_line, WindowState::kNormal);
  }
  simulation::ScriptedDialogs dialogs_;
};

TEST_F(HostProgramsTest, WhatCannotBeStarted_IsToldByItsName) {
  const struct {
    const char *table, *command_line, *told;  // none: it succeeds in silence
  } cases[] = {{"MMREGOCX.EXE =", "C:\\Windows\\System\\MMREGOCX.EXE MMTypesX.OCX", nullptr},
               {"EDIT.EXE = no-such-program-here | true", "EDIT.EXE C:\\QXAIR\\THERE.LOG", nullptr},
               {"A.EXE = no-such-program-here | nor-this-one", "C:\\WINDOWS\\A.EXE", "C:\\WINDOWS\\A.EXE"},
               {"", "C:\\WINDOWS\\B.EXE", "C:\\WINDOWS\\B.EXE"},
               {"EDIT.EXE = true", "EDIT.EXE C:\\QXAIR\\GONE.LOG", "C:\\QXAIR\\GONE.LOG"}};
  PutFile("QXAIR/THERE.LOG", "line\r\n");
  for (const auto& [table, command_line, told] : cases) {
    SCOPED_TRACE(command_line);
    const std::size_t before = dialogs_.shown().size();
    Run(table, command_line);
    ASSERT_EQ(dialogs_.shown().size() - before, told == nullptr ? 0U : 1U);
    if (told == nullptr) continue;
    EXPECT_THAT(dialogs_.shown().back().text, HasSubstr(told));
  }
}

TEST_F(HostProgramsTest, Document_IsOpenedAsItLiesOnTheHost) {
  PutFile("QXAIR/man40s1.doc", "the manual");
  std::filesystem::create_directories(Host("opened"));
  Run("WORDPAD.EXE = true\nWORDPAD.EXE *.DOC = cp --target-directory=" + Host("opened").string(),
      "C:\\Program Files\\Accessories\\WordPad.exe C:\\QXAIR\\MAN40S1.DOC");
  EXPECT_TRUE(QTest::qWaitFor([this] { return FileText("opened/man40s1.doc") == "the manual"; }));
  EXPECT_THAT(dialogs_.shown(), IsEmpty());
}

TEST_F(HostProgramsTest, KnowsWhatHasAnInstalledProgram) {
  desktop::HostPrograms programs(
      ProgramTable::Parse("A.EXE = no-such-program-here | true\nB.EXE = no-such-program-here\nC.EXE =\n",
                          "/"),
      station_.files(), dialogs_);
  EXPECT_TRUE(programs.Knows("C:\\WINDOWS\\a.exe /x"));
  EXPECT_FALSE(programs.Knows("B.EXE"));
  EXPECT_FALSE(programs.Knows("C.EXE")) << "nothing to do is nothing to show";
  EXPECT_FALSE(programs.Knows("D.EXE"));
  EXPECT_THAT(dialogs_.shown(), IsEmpty());
}

}  // namespace
}  // namespace quixair::testing
