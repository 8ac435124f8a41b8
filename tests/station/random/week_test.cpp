#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr int kSongMs = 180000;
constexpr int kSpotMs = 20000;
constexpr int kRowsOfSet = 5;
constexpr const char* kDays[] = {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"};

/// Day, hour and row of a spot are its id: "S3144" is row 4 of Wednesday's set at 14:20.
std::string SpotOf(int day, int hour, int row) {
  char id[8];
  std::snprintf(id, sizeof id, "S%d%02d%d", day, hour, row);
  return id;
}

std::string TimeOf(int hour) {
  char text[12];
  std::snprintf(text, sizeof text, "%02d:20 %s", hour % 12 == 0 ? 12 : hour % 12, hour < 12 ? "AM" : "PM");
  return text;
}

class Week : public StationFixture {
 protected:
  void PutDay(int day) {
    std::vector<std::string> rows;
    for (int hour = 0; hour < 24; ++hour) {
      rows.push_back(TimeOf(hour));
      for (int row = 1; row <= kRowsOfSet; ++row) {
        AddSpot(SpotOf(day, hour, row), kSpotMs);
        rows.push_back(SpotOf(day, hour, row));
      }
    }
    PutTemplate(std::string(kDays[day]) + ".TPD", rows);
  }

  /// The spots of one day as they were aired, with the seconds of the day at which each began.
  struct AiredSpot {
    std::string id;
    int second = 0;
  };
  std::vector<AiredSpot> SpotsOfDay() const {
    std::vector<AiredSpot> spots;
    for (const Aired& item : aired()) {
      if (item.id.front() != 'S') continue;
      spots.push_back({item.id, std::stoi(item.time) * 3600 + std::stoi(item.time.substr(3)) * 60 +
                                    std::stoi(item.time.substr(6))});
    }
    return spots;
  }
};

TEST_F(Week, EverySetAirsInItsPlaceAndNoSongComesBackTooSoon) {
  AddLibrary(2000, 10, 4, kSongMs);
  for (int day = 0; day < 7; ++day) PutDay(day);
  PutSettings(
      {.SongsPerLiner = 3, .SongsPerBreak = 50, .MaxSpotsPerBreak = 2, .LinerEnable = 1, .BreakType = 2});
  PutFile("QXAIR/overlap.dta", "\"3\"\r\n");
  SetClock("2026-11-22 00:00:30");
  StartRandomWith("SUN.TPD");
  Advance(-30s + 24h);
  std::set<std::string> cycle;
  std::vector<std::size_t> cycles;
  for (int day = 0; day < 7; ++day) {
    if (day > 0) Advance(24h);
    const std::vector<AiredSpot> spots = SpotsOfDay();
    ASSERT_EQ(spots.size(), 24U * kRowsOfSet) << kDays[day];
    for (int i = 0; i < 24 * kRowsOfSet; ++i) {
      const int hour = i / kRowsOfSet;
      const AiredSpot& spot = spots[static_cast<std::size_t>(i)];
      EXPECT_EQ(spot.id, SpotOf(day, hour, i % kRowsOfSet + 1));
      const int since_due = spot.second - (hour * 3600 + 20 * 60) - i % kRowsOfSet * kSpotMs / 1000;
      EXPECT_GE(since_due, 0) << spot.id;
      EXPECT_LE(since_due, kSongMs / 1000 + 2) << spot.id;
    }
    for (const Aired& item : aired()) {
      if (item.id.front() != 'M' || cycle.insert(item.id).second) continue;
      cycles.push_back(cycle.size());  // the history was cleared
      cycle = {item.id};
    }
    ForgetAired();
  }
  Advance(1s);
  EXPECT_EQ(Shown("RandomForm1", "Label8"), "SUN.TPD");
  ASSERT_LE(cycles.size(), 6U) << "3,000 songs from a pool of 2,000";
  for (const std::size_t songs : cycles) EXPECT_GE(songs, 500U);
}

}  // namespace
}  // namespace quixair::testing
