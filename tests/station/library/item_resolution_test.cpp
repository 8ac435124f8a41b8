#include "station/library/item_resolution.h"

#include <gtest/gtest.h>

#include "script/script_language.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class ItemResolution : public StationFixture {};

TEST_F(ItemResolution, WavComesBeforeMp3) {
  Files& files = station_.files();
  EXPECT_FALSE(FindAudioFile(files, "C", "M1").has_value());
  AddAudio("M1", 1000, ".MP3");
  EXPECT_EQ(FindAudioFile(files, "C", "m1"), ".mp3");
  AddAudio("M1", 1000, ".Wav");
  EXPECT_EQ(FindAudioFile(files, "c", "M1"), ".wav");
  for (const char* drive : {"D", "Q", ""})
    EXPECT_FALSE(FindAudioFile(files, drive, "M1").has_value()) << drive;
}

TEST_F(ItemResolution, TimeFile_ServesBothHalvesOfTheDay) {
  const std::pair<const char*, const char*> cases[] = {{"09:15", "0915"}, {"21:15", "0915"},
                                                       {"00:05", "1205"}, {"12:05", "1205"},
                                                       {"13:00", "0100"}, {"23:59", "1159"}};
  for (const auto& [time, digits] : cases) {
    const CivilTime now = script::MomentOf("2026-11-22 " + std::string(time) + ":00");
    EXPECT_EQ(TimeFileName(now), "C:\\QXTIME\\T" + std::string(digits) + ".WAV") << time;
  }
}

TEST_F(ItemResolution, SpotDates_LetASpotPlayFromItsStartThroughItsKillDate) {
  const struct {
    const char *start, *kill, *refusal;  // null: it plays
  } cases[] = {
      {"", "", nullptr},
      {"03-07-01", "", nullptr},
      {"03-06-01", "03-07-01", nullptr},
      {"03-08-01", "", " [Start Date is 1 days away]"},
      {"04-07-01", "04-30-01", " [Start Date is 31 days away]"},
      {"", "03-06-01", " [Kill Date has Passed by -1 days]"},
      {"01-01-01", "03-04-01", " [Kill Date has Passed by -3 days]"},
      {"12-31-99", "12-31-99", " [Kill Date has Passed by -432 days]"},
      {"03-08-01", "03-04-01", " [Start Date is 1 days away]"},
      {"--", "", nullptr},
      {"torn", "03--", nullptr},
  };
  const CivilTime today = script::MomentOf("2001-03-07 23:59:59");
  for (const auto& [start, kill, refusal] : cases) {
    SCOPED_TRACE(std::string(start) + " to " + kill);
    const auto got = SpotDateRefusal(start, kill, today);
    EXPECT_EQ(got.value_or("plays"), refusal == nullptr ? "plays" : refusal);
  }
}

TEST_F(ItemResolution, SpotDateSwitch_IsUnknownWithoutItsFile) {
  const struct {
    const char* content;  // null: no file
    SpotDateSwitch value;
    const char* caption;
  } cases[] = {
      {nullptr, SpotDateSwitch::kUnknown, "Spot Date Check: ?"},
      {"\"1\"\r\n", SpotDateSwitch::kOn, "Spot Date Check: ON"},
      {"\"0\"\r\n", SpotDateSwitch::kOff, "Spot Date Check: OFF"},
      {"", SpotDateSwitch::kOff, "Spot Date Check: OFF"},
  };
  for (const auto& [content, value, caption] : cases) {
    if (content != nullptr) PutFile("QXAIR/SPOTDRST.DTA", content);
    EXPECT_EQ(ReadSpotDateSwitch(station_.files()), value) << caption;
    EXPECT_EQ(SpotDateCaption(value), caption);
  }
}

}  // namespace
}  // namespace quixair::testing
