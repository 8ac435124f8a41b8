#include "desktop/session_entry.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

namespace fs = std::filesystem;

std::string ExecLine(std::string_view program) {
  const std::string text = desktop::SessionEntryText(program).value_or("no entry");
  const std::size_t start = text.find("Exec=");
  return start == std::string::npos ? text : text.substr(start, text.find('\n', start) - start);
}

TEST(SessionEntryTexts, PathsAreQuotedAndEscaped) {
  const struct {
    const char* program;
    const char* line;
  } cases[] = {
      {"/home/on air/quixair", R"(Exec="/home/on air/quixair")"},
      {"/home/the \"air\"/quixair", R"(Exec="/home/the \\"air\\"/quixair")"},
      {"/home/$air/quixair", R"(Exec="/home/\\$air/quixair")"},
      {"/home/`air`/quixair", R"(Exec="/home/\\`air\\`/quixair")"},
      {"/home/back\\slash/quixair", R"(Exec="/home/back\\\\slash/quixair")"},
      {"/home/100%u/quixair", R"(Exec="/home/100%%u/quixair")"},
      {"/home/it's;&|<>~*?#()/q", R"(Exec="/home/it's;&|<>~*?#()/q")"},
      {"/home/two\nlines\tand tab/q", R"(Exec="/home/two\nlines\tand tab/q")"},
      {"/home/caf\xC3\xA9/q", "Exec=\"/home/caf\xC3\xA9/q\""},
  };
  for (const auto& [program, line] : cases) EXPECT_EQ(ExecLine(program), line);
}

class SessionEntryFile : public ::testing::Test {
 protected:
  std::vector<std::string> NamesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename());
    return names;
  }

  TemporaryFolder temporary_;
  fs::path folder_ = temporary_.path() / "not" / "there yet" / "autostart";
  fs::path file_ = folder_ / "quixair.desktop";
  desktop::SessionEntry entry_{folder_, "/opt/quixair"};
};

TEST_F(SessionEntryFile, SetAgainAndUnset_TouchNothingButTheFile) {
  const std::string whole =
      "[Desktop Entry]\nType=Application\nName=Quixair\n"
      "Comment=Puts the station back on the air when the desktop session starts\n"
      "Exec=\"/opt/quixair\"\nTerminal=false\n";
  ASSERT_TRUE(entry_.SetStartsWithSession(true).ok());
  EXPECT_EQ(ReadHostFile(file_), whole);
  EXPECT_EQ(NamesInFolder(), std::vector<std::string>{"quixair.desktop"});
  WriteHostFile(file_, "[Desktop Entry]\nHidden=true\n" + std::string(4000, '#'));
  WriteHostFile(folder_ / "clock.desktop", "other");
  ASSERT_TRUE(entry_.SetStartsWithSession(true).ok());
  EXPECT_EQ(ReadHostFile(file_), whole);
  ASSERT_TRUE(entry_.SetStartsWithSession(false).ok());
  EXPECT_EQ(NamesInFolder(), std::vector<std::string>{"clock.desktop"});
}

TEST_F(SessionEntryFile, UnsetBesideAnEntryOfSomebodyElse_LeavesIt) {
  const std::string own =
      "[Desktop Entry]\nType=Application\nName=Quixair\nExec=/home/on air/with_my_mixer\n";
  WriteHostFile(file_, own);
  EXPECT_TRUE(entry_.SetStartsWithSession(false).ok());
  EXPECT_EQ(ReadHostFile(file_), own);
  desktop::SessionEntry moved(folder_, "/opt/moved/quixair");
  ASSERT_TRUE(moved.SetStartsWithSession(true).ok());
  EXPECT_TRUE(entry_.SetStartsWithSession(false).ok());
  EXPECT_FALSE(fs::exists(file_)) << "the program wrote it where it was before";
}

TEST_F(SessionEntryFile, UnsetWithoutAFile_IsNoFaultAndMakesNothing) {
  EXPECT_TRUE(entry_.SetStartsWithSession(false).ok());
  EXPECT_FALSE(fs::exists(folder_));
}

TEST_F(SessionEntryFile, FolderThatCannotBeMade_IsAFaultOfSettingOnly) {
  WriteHostFile(temporary_.path() / "not", "a file stands where the folder should");
  EXPECT_EQ(entry_.SetStartsWithSession(true).error(), RunTimeError::kPathFileAccess);
  EXPECT_TRUE(entry_.SetStartsWithSession(false).ok()) << "no entry can be there";
}

TEST_F(SessionEntryFile, FileThatCannotBeReplaced_IsAFaultBothWays) {
  WriteHostFile(file_ / "inside", "a folder stands where the file should");
  EXPECT_EQ(entry_.SetStartsWithSession(true).error(), RunTimeError::kPathFileAccess);
  EXPECT_EQ(entry_.SetStartsWithSession(false).error(), RunTimeError::kPathFileAccess);
  EXPECT_TRUE(fs::exists(file_ / "inside"));
}

TEST_F(SessionEntryFile, PathThatNoEntryCanName_IsAFaultAndNothingIsMade) {
  for (const char* program : {"/opt/a=b/quixair", "build/quixair", ""}) {
    desktop::SessionEntry nameless(folder_, program);
    EXPECT_EQ(nameless.SetStartsWithSession(true).error(), RunTimeError::kBadFileName) << program;
  }
  EXPECT_FALSE(fs::exists(folder_));
}

}  // namespace
}  // namespace quixair::testing
