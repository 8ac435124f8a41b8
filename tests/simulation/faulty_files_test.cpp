#include "simulation/faulty_files.h"

#include <gtest/gtest.h>

#include "station/platform/file_copy.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using simulation::FileAct;

class FaultyFilesTest : public StationFixture {
 protected:
  FaultyFilesTest() { PutFile("QXAIR/A.DTA", "a"); }
  /// The error number of each of four writes.
  std::string FourWrites(std::string_view path) {
    std::string numbers;
    for (int i = 0; i < 4; ++i) numbers += std::to_string(files().Write(path, "b").number()) + ' ';
    return numbers;
  }
  Files& files() { return station_.files(); }
};

TEST_F(FaultyFilesTest, EachAct_FailsAsToldAndTouchesNothing) {
  const std::pair<FileAct, std::function<Status()>> acts[] = {
      {FileAct::kRead, [&] { return files().Read("C:\\QXAIR\\A.DTA").status(); }},
      {FileAct::kWrite, [&] { return files().Write("C:\\QXAIR\\A.DTA", "b"); }},
      {FileAct::kAppend, [&] { return files().Append("C:\\QXAIR\\A.DTA", "b"); }},
      {FileAct::kDelete, [&] { return files().Delete("C:\\QXAIR\\A.DTA"); }},
      {FileAct::kCopy, [&] { return files().Copy("C:\\QXAIR\\A.DTA", "C:\\QXAIR\\B.DTA"); }},
      {FileAct::kCopy, [&] { return files().BeginCopy("C:\\QXAIR\\A.DTA", "C:\\QXAIR\\B.DTA").status(); }},
      {FileAct::kMakeFolder, [&] { return files().MakeFolder("C:\\QXAIR\\NEW"); }},
      {FileAct::kList, [&] { return files().List("C:\\QXAIR", "*.*").status(); }},
      {FileAct::kList, [&] { return files().ListFolders("C:\\QXAIR").status(); }},
  };
  for (const auto& [act, run] : acts) {
    station_.files().Fail(act, "*", RunTimeError::kDeviceInputOutput);
    EXPECT_EQ(run().number(), 57);
    EXPECT_EQ(FileText("QXAIR/A.DTA"), "a");
    EXPECT_FALSE(files().Exists("C:\\QXAIR\\B.DTA"));
    station_.files().Mend();
  }
}

TEST_F(FaultyFilesTest, FaultsComeAtTheirTurnAndForTheirFiles) {
  const struct {
    const char* pattern;
    int nth;
    int times;
    const char* numbers;
  } cases[] = {{"*", 1, simulation::FaultyFiles::kAlways, "61 61 61 61 "},
               {"c:\\qxair\\*.dta", 3, 1, "0 0 61 0 "},
               {"*\\A.DTA", 2, 2, "0 61 61 0 "},
               {"*\\B.DTA", 1, 1, "0 0 0 0 "}};
  for (const auto& [pattern, nth, times, numbers] : cases) {
    station_.files().Fail(FileAct::kWrite, pattern, RunTimeError::kDiskFull, {nth, times});
    EXPECT_EQ(FourWrites("C:\\QXAIR\\A.DTA"), numbers) << pattern;
    station_.files().Mend();
  }
}

}  // namespace
}  // namespace quixair::testing
