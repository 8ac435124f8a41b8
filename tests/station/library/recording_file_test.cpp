#include "station/library/recording_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "station/platform/text.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

const SpotRecord kSpot{.Length = "29.8",
                       .RecordingId = "S1042",
                       .Drive = "D",
                       .Account = "Caf\xE9 Noir, Inc.",
                       .Title = "Fall Sale",
                       .StartDate = "03-01-01",
                       .KillDate = "03-31-01",
                       .Product = "A",
                       .Announcer = "B",
                       .PresetLength = "30"};
const MusicRecord kSong{.Length = "[New]",
                        .RecordingId = "M0117",
                        .Drive = "c",
                        .Artist = "The Lanterns",
                        .Title = "Some, Song",
                        .Rotation = "H",
                        .StartDate = "--",
                        .FromYear = "1999"};
const LinerRecord kLiner{.Length = "5.0",
                         .RecordingId = "LL0100",
                         .Drive = "C",
                         .Title = "Top of Hour",
                         .Announcer = "J",
                         .LinerType = "I",
                         .StartDate = "01-01-01",
                         .KillDate = ""};

constexpr std::string_view kSpotBytes =
    "\"29.8\"\r\n\"S1042\"\r\n\"D\"\r\n\"Caf\xE9 Noir, Inc.\"\r\n\"Fall "
    "Sale\"\r\n\"03-01-01\"\r\n\"03-31-01\"\r\n"
    "\"A\"\r\n\"B\"\r\n\"30\"\r\n";
constexpr std::string_view kSongBytes =
    "\"[New]\"\r\n\"M0117\"\r\n\"c\"\r\n\"The Lanterns\"\r\n\"Some, "
    "Song\"\r\n\"H\"\r\n\"--\"\r\n\"1999\"\r\n";
constexpr std::string_view kLinerBytes =
    "\"5.0\"\r\n\"LL0100\"\r\n\"C\"\r\n\"Top of Hour\"\r\n\"J\"\r\n\"I\"\r\n\"01-01-01\"\r\n\"\"\r\n";

class RecordingFile : public StationFixture {
 protected:
  Files& files() { return station_.files(); }
};

TEST_F(RecordingFile, Records_AreWrittenByteForByteAndReadBack) {
  ASSERT_TRUE(WriteRecord(files(), kSpot).ok());
  ASSERT_TRUE(WriteRecord(files(), kSong).ok());
  ASSERT_TRUE(WriteRecord(files(), kLiner).ok());
  EXPECT_EQ(FileText("QXDATA/S1042.DAT"), kSpotBytes);
  EXPECT_EQ(FileText("QXDATA/M0117.DAT"), kSongBytes);
  EXPECT_EQ(FileText("QXDATA/LL0100.DAT"), kLinerBytes);
  EXPECT_EQ(ReadSpotRecord(files(), "s1042").value_or({}), kSpot);
  EXPECT_EQ(ReadMusicRecord(files(), "M0117").value_or({}), kSong);
  EXPECT_EQ(ReadLinerRecord(files(), "ll0100").value_or({}), kLiner);
}

TEST_F(RecordingFile, LinesBehindTheRecord_AreLeftAlone) {
  EXPECT_EQ(ParseMusic(std::string(kSongBytes) + "\r\n\r\n").value_or({}), kSong);
  EXPECT_EQ(ParseLiner(std::string(kLinerBytes) + "\r\n\r\n\r\n").value_or({}), kLiner);
}

TEST_F(RecordingFile, AnyMissingLine_Is62) {
  const auto without_last = [](std::string_view bytes, int lines) {
    std::size_t end = bytes.size();
    for (int i = 0; i < lines; ++i) end = bytes.rfind('\n', end - 2) + 1;
    return bytes.substr(0, end);
  };
  for (int lines = 1; lines <= 7; ++lines) {
    EXPECT_EQ(ParseSpot(without_last(kSpotBytes, lines)).status().number(), 62) << lines << " missing";
    EXPECT_EQ(ParseMusic(without_last(kSongBytes, lines)).status().number(), 62) << lines << " missing";
    EXPECT_EQ(ParseLiner(without_last(kLinerBytes, lines)).status().number(), 62) << lines << " missing";
  }
  EXPECT_EQ(ParseSpot("").status().number(), 62);
  EXPECT_EQ(ReadSpotRecord(files(), "S9").status().number(), 53);
  std::filesystem::remove_all(Host("QXDATA"));
  EXPECT_EQ(ReadSpotRecord(files(), "S9").status().number(), 76);
  EXPECT_EQ(WriteRecord(files(), kSpot).number(), 76);
}

TEST_F(RecordingFile, LeadingFields_AreFilledUpWithEmptyTexts) {
  using Fields = std::vector<std::string>;
  EXPECT_EQ(ReadLeadingFields(files(), "S9", 3), (Fields{"", "", ""}));
  PutFile("QXDATA/S9.DAT", "\"30\"\r\n\"S9");
  EXPECT_EQ(ReadLeadingFields(files(), "s9", 3), (Fields{"30", "S9", ""}));
  PutFile("QXDATA/S9.DAT", kSpotBytes);
  EXPECT_EQ(ReadLeadingFields(files(), "S9", 3), (Fields{"29.8", "S1042", "D"}));
}

TEST_F(RecordingFile, ListRecordings_GivesTheStemsThatMatch) {
  for (const char* name : {"S1.DAT", "s22.dat", "L1.DAT", "LL1.DAT", "Lm1.Dat", "TEMP.DAT", "S3.BAK"}) {
    PutFile("QXDATA/" + std::string(name), "");
  }
  const auto listed = [this](std::string_view pattern) {
    std::vector<std::string> ids = ListRecordings(files(), pattern);
    std::sort(ids.begin(), ids.end());
    return ids;
  };
  using Ids = std::vector<std::string>;
  EXPECT_EQ(listed("S*.DAT"), (Ids{"S1", "s22"}));
  EXPECT_EQ(listed("L*.DAT"), (Ids{"L1", "LL1", "Lm1"}));
  EXPECT_EQ(listed("LL*.DAT"), (Ids{"LL1"}));
  EXPECT_EQ(listed("M*.DAT"), Ids{});
  std::filesystem::remove_all(Host("QXDATA"));
  EXPECT_EQ(listed("S*.DAT"), Ids{});
}

TEST_F(RecordingFile, HandOverFiles_StandByteForByte) {
  ASSERT_TRUE(WriteHandOverRecord(files(), kSpotBytes).ok());
  EXPECT_EQ(FileText("QXDATA/TEMP.DAT"), kSpotBytes);
  EXPECT_EQ(ReadHandOverRecord(files()).value_or(""), kSpotBytes);
  EXPECT_EQ(ReadLastRecording(files()).status().number(), 53);
  ASSERT_TRUE(WriteLastRecording(files(), "S1042").ok());
  EXPECT_EQ(FileText("QXAIR/TEMPSPOT.DAT"), "\"S1042\"\r\n");
  EXPECT_EQ(ReadLastRecording(files()).value_or(""), "S1042");
  const std::pair<RecordingKind, const char*> kinds[] = {
      {RecordingKind::kSpot, "1"}, {RecordingKind::kMusic, "2"}, {RecordingKind::kLiner, "3"}};
  for (const auto& [kind, code] : kinds) {
    const ImportRequest request{.RecordingId = "X1", .Drive = "E", .kind = kind};
    ASSERT_TRUE(WriteImportRequest(files(), request).ok());
    EXPECT_EQ(FileText("QXAIR/IMPORT.DAT"), "\"X1\"\r\n\"E\"\r\n\"" + std::string(code) + "\"\r\n");
    EXPECT_EQ(ReadImportRequest(files()).value_or({}), request);
  }
  PutFile("QXAIR/IMPORT.DAT", "\"X1\"\r\n\"E\"\r\n");
  EXPECT_EQ(ReadImportRequest(files()).status().number(), 62);
}

TEST_F(RecordingFile, RewrittenAudioFields_LeaveTheOthersOfTheKind) {
  AddSpot("S1", 30000, "P", "01-01-26", "12-31-26");
  AddSong("M1", 30000);
  AddLiner("L1", 30000);
  PutFile("QXDATA/M1.DAT", FileText("QXDATA/M1.DAT") + "\r\n\r\n");  // as after a capture
  const auto spot = ReadSpotRecord(files(), "S1").value_or({});
  const auto song = ReadMusicRecord(files(), "M1").value_or({});
  const auto liner = ReadLinerRecord(files(), "L1").value_or({});
  for (const char* id : {"S1", "m1", "L1"}) EXPECT_TRUE(RewriteAudioFields(files(), id, "9.9", "E").ok());
  auto [spot_now, song_now, liner_now] = std::tuple(spot, song, liner);
  spot_now.Length = song_now.Length = liner_now.Length = "9.9";
  spot_now.Drive = song_now.Drive = liner_now.Drive = "E";
  EXPECT_EQ(FileText("QXDATA/S1.DAT"), FormatRecord(spot_now));
  EXPECT_EQ(FileText("QXDATA/M1.DAT"), FormatRecord(song_now));
  EXPECT_EQ(FileText("QXDATA/L1.DAT"), FormatRecord(liner_now));
  PutFile("QXDATA/S2.DAT", FormatRecord(song));
  EXPECT_EQ(RewriteAudioFields(files(), "S2", "9.9", "E").number(), 62) << "a spot has ten lines";
  EXPECT_EQ(FileText("QXDATA/S2.DAT"), FormatRecord(song));
  EXPECT_EQ(RewriteAudioFields(files(), "S3", "9.9", "E").number(), 53);
}

TEST(RecordingIds, FirstLetters_TellTheKind) {
  EXPECT_TRUE(IsSpotId("s1") && IsMusicId("m1") && IsLinerId("l1") && IsLinerId("LL1") && IsLegalId("lL1"));
  EXPECT_FALSE(IsLegalId("L1") || IsLegalId("LM1") || IsSpotId("") || IsMusicId("1M") || IsLinerId(">LIVE"));
}

TEST(RecordingDates, KillDateOfThreeEmptyFields_IsNone) {
  EXPECT_EQ(KillDateFromEntry("", "", ""), "");
  EXPECT_EQ(KillDateFromEntry("03", "07", "01"), "03-07-01");
  EXPECT_EQ(KillDateFromEntry("03", "", ""), "03--");
}

}  // namespace
}  // namespace quixair::testing
