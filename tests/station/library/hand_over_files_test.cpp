#include "station/library/hand_over_files.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class HandOverFiles : public StationFixture {
 protected:
  Files& files() { return station_.files(); }
};

TEST_F(HandOverFiles, RecordForCapture_HasItsLinesAndItsOwnId) {
  EXPECT_EQ(ReadHandOver(files(), RecordingKind::kLiner).id(), "");
  const std::string lines = Lines({"[New]", "M1", "C", "Artist", "Title", "A", "01-01-26", "2026"});
  ASSERT_TRUE(WriteHandOver(files(), Recording::Of(RecordingKind::kMusic, lines)).ok());
  EXPECT_EQ(FileText("QXDATA/TEMP.DAT"), lines);
  const Recording song = ReadHandOver(files(), RecordingKind::kMusic);
  EXPECT_EQ(song.id(), "M1");
  EXPECT_EQ(song.value(Field::kFromYear), "2026");
}

TEST_F(HandOverFiles, LastRecordingAndImportRequest_StandByteForByte) {
  EXPECT_EQ(ReadLastRecording(files()).status().number(), 53);
  ASSERT_TRUE(WriteLastRecording(files(), "S1042").ok());
  EXPECT_EQ(FileText("QXAIR/TEMPSPOT.DAT"), Lines({"S1042"}));
  EXPECT_EQ(ReadLastRecording(files()).value_or(""), "S1042");
  const std::pair<RecordingKind, const char*> kinds[] = {
      {RecordingKind::kSpot, "1"}, {RecordingKind::kMusic, "2"}, {RecordingKind::kLiner, "3"}};
  for (const auto& [kind, code] : kinds) {
    const ImportRequest request{.RecordingId = "X1", .Drive = "E", .kind = kind};
    ASSERT_TRUE(WriteImportRequest(files(), request).ok());
    EXPECT_EQ(FileText("QXAIR/IMPORT.DAT"), Lines({"X1", "E", code}));
    EXPECT_EQ(ReadImportRequest(files()).value_or({}), request);
  }
  PutFile("QXAIR/IMPORT.DAT", Lines({"X1", "E"}));
  EXPECT_EQ(ReadImportRequest(files()).status().number(), 62);
}

}  // namespace
}  // namespace quixair::testing
