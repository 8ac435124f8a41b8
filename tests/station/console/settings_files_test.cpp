#include "station/console/settings_files.h"

#include <gtest/gtest.h>

#include "station/console/station_paths.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class SettingsFiles : public StationFixture {
 protected:
  Files& files() { return station_.files(); }
};

TEST_F(SettingsFiles, Values_ComeBackByteForByte) {
  EXPECT_FALSE(ReadSetting(files(), station_paths::kPikMode).has_value());
  EXPECT_EQ(ReadNumberSetting(files(), station_paths::kRandomVerify), 0);
  ASSERT_TRUE(WriteTextSetting(files(), station_paths::kPikMode, "3").ok());
  ASSERT_TRUE(WriteNumberSetting(files(), station_paths::kRandomVerify, 1).ok());
  EXPECT_EQ(FileText("QXAIR/PIKMODE.DTA"), "\"3\"\r\n");
  EXPECT_EQ(FileText("QXAIR/RNDVERLG.DTA"), "1\r\n");
  EXPECT_EQ(ReadSetting(files(), station_paths::kPikMode), "3");
  EXPECT_EQ(ReadNumberSetting(files(), station_paths::kRandomVerify), 1);
  ASSERT_TRUE(WriteTextSetting(files(), station_paths::kPikMode, "").ok());
  EXPECT_EQ(FileText("QXAIR/PIKMODE.DTA"), "\"\"\r\n");
  EXPECT_EQ(ReadSetting(files(), station_paths::kPikMode), "");
}

TEST_F(SettingsFiles, RestartRecord_HasARunningAndACleanForm) {
  ASSERT_TRUE(WriteRunningRecord(files(), kRandomMode, "MON.TPD").ok());
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"1\"\r\n\"RANDOM\"\r\n\"MON.TPD\"\r\n\"\"\r\n");
  const RestartRecord record = ReadRestartRecord(files());
  EXPECT_TRUE(record.running);
  EXPECT_EQ(record.mode, kRandomMode);
  EXPECT_EQ(record.template_name, "MON.TPD");
  ASSERT_TRUE(WriteCleanExitRecord(files()).ok());
  EXPECT_EQ(FileText("QXAIR/RESET.DTA"), "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n");
  EXPECT_FALSE(ReadRestartRecord(files()).running);
}

TEST_F(SettingsFiles, TornRestartRecord_IsReadAsFarAsItGoes) {
  const struct {
    const char* content;
    bool running;
    const char* mode;
  } cases[] = {{"", false, ""},
               {"\"1", true, ""},
               {"\"1\"\r\n\"RAN", true, "RAN"},
               {"\"1\"\r\n", true, ""},
               {"\"\"\r\n\"RANDOM\"\r\n", false, "RANDOM"}};
  for (const auto& [content, running, mode] : cases) {
    SCOPED_TRACE(content);
    PutFile("QXAIR/RESET.DTA", content);
    EXPECT_EQ(ReadRestartRecord(files()).running, running);
    EXPECT_EQ(ReadRestartRecord(files()).mode, mode);
  }
}

}  // namespace
}  // namespace quixair::testing
