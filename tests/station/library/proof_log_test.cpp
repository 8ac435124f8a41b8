#include "station/library/proof_log.h"

#include <gtest/gtest.h>

#include "station/platform/civil_time.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class ProofLog : public StationFixture {
 protected:
  Status Verify(std::string_view id, std::string_view text) {
    const CivilTime now = station_.time().Now();
    return LogVerification(station_.files(), now, id, LogDescription(id, text), HourMinuteSecondAmPm(now),
                           ModeLetter::kPickList);
  }
};

TEST_F(ProofLog, Line_StandsByteForByteAndIsReadBack) {
  SetClock("2001-03-07 13:07:33");
  ASSERT_TRUE(Verify("S1042", "Fall, Sale").ok());
  const std::string line = FileText("QXTEMPLT/Wed.LOG");
  EXPECT_EQ(line, "\"03-07-2001\",\"01:07:33 PM\",\"S1042\",\"Fall, Sale\",\"P\"\r\n");
  const ProofLine proof{.date = "03-07-2001",
                        .start_time = "01:07:33 PM",
                        .id = "S1042",
                        .description = "Fall, Sale",
                        .mode = ModeLetter::kPickList};
  EXPECT_EQ(ProofLine::Parse(line), proof);
  EXPECT_EQ(ProofLine::Parse(line.substr(0, line.size() - 2)), proof) << "without its end";
  EXPECT_EQ(proof.Format(), line);
}

TEST(ProofRules, TornOrOtherLines_AreNoProof) {
  for (const char* line : {"", "\r\n", "\"03-07-2001\",\"01:07:33 PM\",\"S1042\",\"Fall",
                           "\"03-07-2001\",\"01:07:33 PM\",\"S1042\",\"Fall Sale\",\"\"",
                           "\"03-07-2001\",\"01:07:33 PM\",\"S1042\",\"Fall Sale\",\"P\",\"more\"",
                           "\"R 11-22-26 1:07:33 p S1042 [Start Date is 2 days away]\""})
    EXPECT_FALSE(ProofLine::Parse(line)) << line;
}

TEST_F(ProofLog, RunAcrossMidnight_GoesOnInTheNextDaysFile) {
  PutFile("QXTEMPLT/Mon.LOG", "last week's\r\n");
  SetClock("2026-11-22 23:59:59");
  ASSERT_TRUE(Verify("M0001", "Artist").ok());
  Advance(1s);
  ASSERT_TRUE(Verify("LL0100", "Title").ok());
  EXPECT_EQ(FileText("QXTEMPLT/Sun.LOG"), "\"11-22-2026\",\"11:59:59 PM\",\"M0001\",\"Artist\",\"P\"\r\n");
  EXPECT_EQ(FileText("QXTEMPLT/Mon.LOG"),
            "last week's\r\n\"11-23-2026\",\"12:00:00 AM\",\"LL0100\",\"*LEGAL I.D.*\",\"P\"\r\n");
}

TEST_F(ProofLog, FullDisk_Is61AndTheNextLineTriesAgain) {
  std::filesystem::create_symlink("/dev/full", Host("QXTEMPLT/Sun.LOG"));
  EXPECT_EQ(Verify("M0001", "Artist").number(), 61);
  std::filesystem::remove(Host("QXTEMPLT/Sun.LOG"));
  EXPECT_TRUE(Verify("M0001", "Artist").ok());
}

TEST(ProofRules, SpotsSongsAndLegalIds_AreVerified) {
  const struct {
    const char* id;
    bool verified;
    const char* description;
  } cases[] = {
      {"S1042", true, "field 4"},    {"s1", true, "field 4"},          {"M0117", true, "field 4"},
      {"m1", true, "field 4"},       {"LL0100", true, "*LEGAL I.D.*"}, {"lL1", true, "*LEGAL I.D.*"},
      {"Ll1", true, "*LEGAL I.D.*"}, {"ll1", true, "*LEGAL I.D.*"},    {"L0100", false, "field 4"},
      {"LM1", false, "field 4"},     {">PAUSE<", false, "field 4"},    {">TIME<", false, "field 4"},
      {"*S1042", false, "field 4"},  {"", false, "field 4"},           {"06:30 PM", false, "field 4"},
  };
  for (const auto& [id, verified, description] : cases) {
    EXPECT_EQ(IsVerified(id), verified) << id;
    EXPECT_EQ(LogDescription(id, "field 4"), description) << id;
  }
}

}  // namespace
}  // namespace quixair::testing
