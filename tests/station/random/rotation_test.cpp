#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

// Songs per liner 3, per break 6, two spots a break, liners on, internal breaks with liners at both ends.
constexpr const char* kTypical = "2\r\n3\r\n6\r\n2\r\n1\r\n1\r\n1\r\n1\r\n1\r\n0\r\n";
constexpr const char* kMusicOnly = "2\r\n3\r\n6\r\n2\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n";

class Rotation : public StationFixture {
 protected:
  std::string AiredKinds() const {
    std::string kinds;
    for (const Aired& item : aired()) kinds += item.id.front();
    return kinds;
  }
  std::string ErrorRow() { return Rows("RandomForm1", "List6").back(); }
};

TEST_F(Rotation, ItemAfterItem_PlaysInTheTypicalOrderWithinOneTick) {
  AddLibrary(30, 4, 2, 10000);
  for (const char* id : {"S1", "S2", "S3", "S4", "S5"}) AddSpot(id, 10000);
  PutRotation({"S1", "S2", "S3", "S4", "S5"});
  PutSettings(ParseRandomSettings(kTypical));
  StartRandom();
  Advance(3min);
  EXPECT_EQ(AiredKinds().substr(0, 15), "MMLMMMLMLSSLMMM");
  for (const Aired& item : aired()) EXPECT_EQ(item.channel, 1);
  // 18 items of 10 s in 180 s leave at most 210 ms between them.
  EXPECT_GE(aired().size(), 18U);
}

TEST_F(Rotation, ItemOnTheAir_IsShown) {
  AddLibrary(2, 2, 2, 10000);
  PutSettings(ParseRandomSettings(kMusicOnly));
  StartRandom();
  const std::string id = aired()[0].id;
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(0)"), " " + id + "  Artist");
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(1)"), " Title of " + id);
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(2)"), " Length:   10");
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(4)"), "(C:\\QXWAVE\\" + id + ".wav)");
  EXPECT_EQ(Shown("RandomForm1", "Text1"), std::string(48, ' ') + "Digital Audio Playback in Progress");
  EXPECT_EQ(Shown("RandomForm1", "Text2"), "Today is: Sun. 11-22-26");
  EXPECT_EQ(Shown("RandomForm1", "Text5"), " (Music File Coming Up)");
  Advance(4200ms);
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(3)"), " Elapsed: 4.2");
  EXPECT_EQ(Shown("RandomForm1", "Label6(0)"), "Ch-1 = Open");
  EXPECT_EQ(Shown("RandomForm1", "Label6(2)"), "Ch-3 = Closed");
  Advance(6s);
  EXPECT_EQ(Shown("RandomForm1", "LastLabel(0)"), " " + id + "  Artist");
  EXPECT_EQ(Shown("RandomForm1", "LastLabel(1)"), " Title of " + id);
}

TEST_F(Rotation, VerificationLog_HoldsSongsSpotsAndLegalIdsOfTheDay) {
  AddLibrary(30, 4, 2, 60000);
  AddSpot("S1", 60000);
  PutRotation({"S1"});
  PutSettings(ParseRandomSettings(kTypical));
  SetClock("2026-11-22 23:50:30");
  StartRandom();
  Advance(20min);
  const std::string sunday = FileText("QXTEMPLT/Sun.LOG");
  const std::string monday = FileText("QXTEMPLT/Mon.LOG");
  const std::string first = "\"11-22-2026\",\"11:50:30 PM\",\"" + aired()[0].id + "\",\"Artist\",\"R\"\r\n";
  EXPECT_EQ(sunday.substr(0, first.size()), first);
  EXPECT_NE(sunday.find("\"S1\",\"Account\",\"R\""), std::string::npos);
  EXPECT_NE(sunday.find("\",\"*LEGAL I.D.*\",\"R\""), std::string::npos) << "one between 23:56 and the hour";
  EXPECT_EQ(sunday.find("\"L0"), std::string::npos) << "liners are no proof of airing";
  EXPECT_EQ(monday.substr(0, 20), "\"11-23-2026\",\"12:00:") << monday.substr(0, 80);
}

TEST_F(Rotation, LegalId_TakesThePlaceOfWhateverWasDue) {
  AddLibrary(30, 4, 2, 60000);
  PutSettings(ParseRandomSettings(kMusicOnly));
  SetClock("2026-11-22 20:54:30");
  StartRandom();
  Advance(30min);
  int legal = 0;
  std::string when;
  for (const Aired& item : aired()) {
    if (!item.id.starts_with("LL")) continue;
    ++legal;
    when = item.time;
  }
  EXPECT_EQ(legal, 1);
  EXPECT_EQ(when.substr(0, 5), "20:56");
}

TEST_F(Rotation, LoggingOff_LeavesNoLine) {
  AddLibrary(5, 2, 2);
  PutFile("QXAIR/RNDVERLG.DTA", "1\r\n");
  StartRandom();
  Advance(1min);
  EXPECT_FALSE(std::filesystem::exists(Host("QXTEMPLT/Sun.LOG")));
}

TEST_F(Rotation, DiskFull_WarnsAndPlaysOnAndLogsAgainWhenThereIsRoom) {
  AddLibrary(5, 2, 2);
  station_.files().Fail(simulation::FileAct::kAppend, "*.LOG", RunTimeError::kDiskFull);
  StartRandom();
  Advance(25s);
  EXPECT_EQ(aired().size(), 3U);
  EXPECT_EQ(Shown("RandomForm1", "Text3"), "WARNING: DRIVE C FULL - VERFICIATION LOGGING TERMINATED!");
  EXPECT_TRUE(Find<TextBox>("RandomForm1", "Text3").visible());
  station_.files().Mend();
  Advance(10s);
  EXPECT_NE(FileText("QXTEMPLT/Sun.LOG"), "");
}

TEST_F(Rotation, UnplayableSongs_AreReportedAndReplacedWithinTheSameStep) {
  AddLibrary(6, 2, 2);
  PutFile("QXWAVE/M0001.wav", "noise");
  PutFile("QXWAVE/M0002.wav", "");
  std::filesystem::remove(Host("QXWAVE/M0003.wav"));
  PutSettings(ParseRandomSettings(kMusicOnly));
  StartRandom();
  Advance(10min);
  int played = 0;
  for (const Aired& item : aired()) played += item.length > 0 ? 1 : 0;
  EXPECT_GE(played, 58) << "ten minutes of songs of ten seconds without a gap";
  const std::vector<std::string> rows = Rows("RandomForm1", "List6");
  const std::string log = FileText("QXAIR/QXERROR.LOG");
  for (const char* row : {"C:\\QXWAVE\\M0001.wav = Empty!!!", "C:\\QXWAVE\\M0002.wav = Empty!!!",
                          "C:\\QXWAVE\\M0003 = Empty!!!"}) {
    EXPECT_NE(std::find(rows.begin(), rows.end(), row), rows.end()) << row;
    EXPECT_NE(log.find(std::string("p ") + row + "\"\r\n"), std::string::npos) << row;
  }
}

TEST_F(Rotation, WavIsTakenBeforeMp3) {
  AddLibrary(2, 2, 2);
  AddAudio("M0001", 7000, ".mp3");
  AddAudio("M0002", 7000, ".mp3");
  std::filesystem::remove(Host("QXWAVE/M0002.wav"));
  PutSettings(ParseRandomSettings(kMusicOnly));
  StartRandom();
  Advance(1min);
  for (const Aired& item : aired()) EXPECT_EQ(item.length, item.id == "M0001" ? 10000 : 7000);
}

TEST_F(Rotation, DriveGoneWithSpots_DoesNotFreezeTheWindow) {
  AddLibrary(20, 3, 2, 10000);
  AddSpot("S1", 10000);
  PutRotation({"S1"});
  PutSettings(
      {.SongsPerLiner = 500, .SongsPerBreak = 1, .MaxSpotsPerBreak = 1, .LinerEnable = 1, .BreakType = 1});
  StartRandom();
  Advance(5s);
  std::filesystem::rename(Host("QXWAVE"), Host("AWAY"));
  std::filesystem::remove(Host("QXDATA/S1.DAT"));
  const std::size_t before = aired().size();
  Advance(6s);  // a step that called itself twice at each of 25 levels would never come back
  EXPECT_LT(aired().size() - before, 400U);
}

TEST_F(Rotation, DriveGone_BoundsTheStepAndTheLogAndGoesOnWhenItIsBack) {
  AddLibrary(50, 3, 2, 10000);
  PutSettings(ParseRandomSettings(kTypical));
  StartRandom();
  Advance(5s);
  std::filesystem::rename(Host("QXWAVE"), Host("AWAY"));
  Advance(20min);
  const auto lines = [this] { return Rows("RandomForm1", "List6").size(); };
  EXPECT_LT(lines(), 90U) << "each song once, some fifty at once, then one a minute";
  EXPECT_GT(lines(), 65U);
  EXPECT_LT(FileText("QXAIR/QXERROR.LOG").size(), 15000U);
  const std::string proof = FileText("QXTEMPLT/Sun.LOG");
  EXPECT_EQ(std::count(proof.begin(), proof.end(), '\n'), 1) << "what did not sound is not proved";
  std::filesystem::rename(Host("AWAY"), Host("QXWAVE"));
  ForgetAired();
  Advance(1min);
  int played = 0;
  for (const Aired& item : aired()) played += item.length > 0 ? 1 : 0;
  EXPECT_GE(played, 5);
  EXPECT_EQ(Find<MediaControl>("RandomForm1", "MMControl1").Mode(), ChannelMode::kPlaying);
}

struct SpotDates {
  const char* name;
  const char* start;
  const char* kill;
  const char* date_check;  // SPOTDRST.DTA, null when missing
  const char* row;         // on the error list, empty when the spot plays
};

TEST_F(Rotation, SpotDates_HoldASpotBackWhenTheCheckIsOn) {
  AddLibrary(30, 2, 2);
  PutSettings(ParseRandomSettings("2\r\n3\r\n2\r\n1\r\n0\r\n1\r\n1\r\n0\r\n0\r\n0\r\n"));
  PutRotation({"S1"});
  const char* on = "\"1\"\r\n";
  const SpotDates cases[] = {
      {"starts today", "11-22-26", "", on, ""},
      {"starts tomorrow", "11-23-26", "", on, "S1 [Start Date is 1 days away]"},
      {"killed today", "", "11-22-26", on, ""},
      {"killed yesterday", "01-01-26", "11-21-26", on, "S1 [Kill Date has Passed by -1 days]"},
      {"no start date", "--", "", on, ""},
      {"check off", "11-23-26", "", "\"0\"\r\n", ""},
      {"no switch", "11-23-26", "", nullptr, ""},
  };
  for (const SpotDates& one : cases) {
    SCOPED_TRACE(one.name);
    std::filesystem::remove(Host("QXAIR/SPOTDRST.DTA"));
    if (one.date_check != nullptr) PutFile("QXAIR/SPOTDRST.DTA", one.date_check);
    AddSpot("S1", 5000, "", one.start, one.kill);
    ForgetAired();
    StartRandom();
    Advance(25s);
    const std::vector<std::string> ids = AiredIds();
    const bool played = std::find(ids.begin(), ids.end(), "S1") != ids.end();
    EXPECT_EQ(played, std::string(one.row).empty());
    EXPECT_EQ(played ? "" : ErrorRow(), one.row);
    EXPECT_EQ(Find<MediaControl>("RandomForm1", "MMControl1").Mode(), ChannelMode::kPlaying);
  }
}

TEST_F(Rotation, RefusedSpot_StandsInTheLogAndOnTheLabelsWhileItsReplacementPlays) {
  AddLibrary(30, 2, 2, 20000);
  PutSettings(ParseRandomSettings("2\r\n3\r\n2\r\n1\r\n0\r\n1\r\n1\r\n0\r\n0\r\n0\r\n"));
  PutFile("QXAIR/SPOTDRST.DTA", "\"1\"\r\n");
  AddSpot("S1", 5000, "", "", "11-20-26");
  PutRotation({"S1"});
  StartRandom();
  Advance(41s);
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(0)"), " S1  Account");
  EXPECT_EQ(aired().back().id.front(), 'M');
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(4)"), "(C:\\QXWAVE\\" + aired().back().id + ".wav)");
  EXPECT_NE(FileText("QXTEMPLT/Sun.LOG").find("\"S1\""), std::string::npos);
}

TEST_F(Rotation, CivilClockJump_DoesNotStopTheAir) {
  AddLibrary(30, 2, 2, 10000);
  StartRandom();
  for (const char* moment : {"2026-11-22 03:00:00", "2026-11-23 12:00:00", "2026-11-22 23:59:55"}) {
    SetClock(moment);
    ForgetAired();
    Advance(60s);
    EXPECT_GE(aired().size(), 5U) << moment;
  }
  EXPECT_EQ(Shown("RandomForm1", "CurrLabel(3)").find('-'), std::string::npos)
      << "no elapsed time below zero";
}

}  // namespace
}  // namespace quixair::testing
