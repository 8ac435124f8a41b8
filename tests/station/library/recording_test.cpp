#include "station/library/recording.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using enum Field;

struct Sample {
  const char* id;
  std::vector<Field> fields;  // in the order of the lines
  std::vector<std::string> lines;
};
const Sample kSamples[] = {
    {"S1042",
     {kLength, kRecordingId, kDrive, kAccount, kTitle, kStartDate, kKillDate, kProduct, kAnnouncer,
      kPresetLength},
     {"29.8", "S1042", "D", "Caf\xE9 Noir, Inc.", "Fall Sale", "03-01-01", "03-31-01", "A", "B", "30"}},
    {"M0117",
     {kLength, kRecordingId, kDrive, kArtist, kTitle, kRotation, kStartDate, kFromYear},
     {"[New]", "M0117", "c", "The Lanterns", "Some, Song", "H", "--", "1999"}},
    {"LL0100",
     {kLength, kRecordingId, kDrive, kTitle, kAnnouncer, kLinerType, kStartDate, kKillDate},
     {"5.0", "LL0100", "C", "Top of Hour", "J", "I", "01-01-01", ""}},
};

class RecordingTest : public StationFixture {
 protected:
  Files& files() { return station_.files(); }
  void Put(const std::string& id, std::string_view bytes) { PutFile("QXDATA/" + id + ".DAT", bytes); }
  std::string Data(const std::string& id) { return FileText("QXDATA/" + id + ".DAT"); }
};

TEST_F(RecordingTest, Fields_StandInTheirLinesAndAreWrittenByteForByte) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.id);
    Recording written(sample.id);
    for (std::size_t i = 0; i < sample.lines.size(); ++i) written.Set(sample.fields[i], sample.lines[i]);
    ASSERT_TRUE(written.Write(files()).ok());
    EXPECT_EQ(Data(sample.id), Lines(sample.lines));
    Recording read(sample.id);
    ASSERT_TRUE(read.Read(files()).ok());
    for (std::size_t i = 0; i < sample.lines.size(); ++i)
      EXPECT_EQ(read.value(sample.fields[i]), sample.lines[i]);
    EXPECT_EQ(read.value(kFirstLabel), sample.lines[3]);
    EXPECT_EQ(read.value(kSecondLabel), sample.lines[4]);
  }
}

TEST_F(RecordingTest, MissingLines_Are62AndEmptyAndTheOthersAreThere) {
  for (const Sample& sample : kSamples) {
    for (std::size_t there = 0; there < sample.lines.size(); ++there) {
      SCOPED_TRACE(sample.id + std::string(" of ") + std::to_string(there));
      const std::vector<std::string> lines(sample.lines.begin(),
                                           sample.lines.begin() + static_cast<std::ptrdiff_t>(there));
      Put(sample.id, Lines(lines) + "\x1A");
      Recording recording(sample.id);
      EXPECT_EQ(recording.Read(files()).number(), 62);
      for (std::size_t i = 0; i < sample.lines.size(); ++i) {
        EXPECT_EQ(recording.value(sample.fields[i]), i < there ? sample.lines[i] : "");
        EXPECT_EQ(recording.ReadTo(sample.fields[i], files()).ok(), i < there);
      }
    }
  }
}

TEST_F(RecordingTest, FileThatCannotBeReached_IsToldByItsNumber) {
  Recording spot("S9");
  EXPECT_EQ(spot.Read(files()).number(), 53);
  EXPECT_EQ(spot.ReadTo(kLength, files()).number(), 53);
  std::filesystem::remove_all(Host("QXDATA"));
  EXPECT_EQ(spot.Read(files()).number(), 76);
  EXPECT_EQ(spot.Write(files()).number(), 76);
}

TEST_F(RecordingTest, IdOfNoKind_HasWhatAllKindsHave) {
  Put("X1", Lines({"20", "X1", "C", "First", "Second", "more"}));
  Recording recording("X1");
  EXPECT_EQ(recording.Read(files()).number(), 62);
  EXPECT_TRUE(recording.ReadTo(kSecondLabel, files()).ok());
  const std::pair<Field, const char*> fields[] = {
      {kLength, "20"},        {kRecordingId, "X1"},     {kDrive, "C"},
      {kFirstLabel, "First"}, {kSecondLabel, "Second"}, {kTitle, ""}};
  for (const auto& [field, text] : fields) EXPECT_EQ(recording.value(field), text);
}

TEST_F(RecordingTest, LinesBehindTheKnownOnes_AreKeptButForEmptyOnesAtTheEnd) {
  const std::string song = Lines(kSamples[1].lines);
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"\r\n\r\n", ""},  // as after a capture
      {"\x1A"
       "torn",
       ""},
      {"\"gain\"\r\n-3\r\n", "\"gain\"\r\n-3\r\n"},
      {"\r\n-3\r\n\r\n\r\n\x1A", "\r\n-3\r\n"},
      {"unended", "unended\r\n"},
  };
  for (const auto& [behind, kept] : cases) {
    Put("M0117", song + behind);
    Recording recording("m0117");
    ASSERT_TRUE(recording.Read(files()).ok());
    ASSERT_TRUE(recording.Write(files()).ok());
    EXPECT_EQ(Data("M0117"), song + kept) << behind;
  }
}

TEST_F(RecordingTest, ListRecordings_GivesTheStemsThatMatch) {
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

TEST(RecordingIds, FirstLetters_TellTheKind) {
  EXPECT_TRUE(IsSpotId("s1") && KindOf("m1") == RecordingKind::kMusic && IsLinerId("l1") && IsLinerId("LL1"));
  EXPECT_TRUE(IsLegalId("lL1"));
  EXPECT_FALSE(IsLegalId("L1") || IsLegalId("LM1") || IsSpotId("") || KindOf("1M") || IsLinerId(">LIVE"));
}

}  // namespace
}  // namespace quixair::testing
