#include "station/host/drives.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

TEST(DrivesTable, Lines_AreEntriesOrPassedOver) {
  const struct {
    const char* line;
    char letter;
    const char* directory;  // empty: no such drive
  } cases[] = {
      {"C = /srv/quixair", 'C', "/srv/quixair"},
      {"c=/srv/quixair", 'C', "/srv/quixair"},
      {"C: = /srv/quixair\r", 'c', "/srv/quixair"},
      {"\t D\t=\t/mnt/my audio  # the big disk", 'D', "/mnt/my audio"},
      {"C = ~", 'C', "/home/op"},
      {"C = ~/Quixair", 'C', "/home/op/Quixair"},
      {"C = ~other", 'C', "~other"},
      {"# C = /srv", 'C', ""},
      {"C /srv", 'C', ""},
      {"C =", 'C', ""},
      {"= /srv", 'C', ""},
      {"CD = /srv", 'C', ""},
      {"1 = /srv", '1', ""},
      {"C = /a=b", 'C', "/a=b"},
  };
  for (const auto& [line, letter, directory] : cases) {
    const Drives drives = Drives::Parse(line, "/home/op");
    EXPECT_EQ(drives.Directory(letter).value_or("").string(), directory) << line;
  }
}

TEST(DrivesTable, MissingFile_IsMadeWithDriveCInTheHomeFolder) {
  const TemporaryFolder home;
  const auto file = home.path() / "config" / "quixair" / "drives.conf";
  for (int start = 0; start < 2; ++start) {  // the second start reads what the first one made
    const Drives drives = Drives::Load(file, home.path());
    EXPECT_EQ(drives.table().size(), 1U);
    EXPECT_EQ(drives.Directory('C'), home.path() / "Quixair");
    EXPECT_TRUE(std::filesystem::is_directory(home.path() / "Quixair"));
  }
  WriteHostFile(file, "D = /mnt/audio\n");
  EXPECT_EQ(Drives::Load(file, home.path()).table().size(), 1U);
  EXPECT_EQ(ReadHostFile(file), "D = /mnt/audio\n") << "one that is there is left as it is";
}

}  // namespace
}  // namespace quixair::testing
