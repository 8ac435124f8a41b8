#include <gtest/gtest.h>

#include "desktop/theme.h"
#include "desktop/views/item_progress.h"
#include "desktop/views/level_meters.h"
#include "desktop/views/state_lamp.h"
#include "station/platform/screen.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class StubOnAir : public Screen, public OnAirScreen {
 public:
  explicit StubOnAir(const Platform& platform) : Screen(platform, "Stub", "Stub") {}
  OnAirStatus on_air_status() const override { return status; }
  std::vector<MediaControl*> sounding_channels() override { return {}; }
  OnAirStatus status;
};

class Views : public StationFixture {
 protected:
  void SetUp() override { station_.StartProgram(); }
};

TEST_F(Views, StateLamp_ShowsTheStateOfTheAirInAWord) {
  StubOnAir screen(station_.platform());
  struct Case {
    AirState state;
    const char* word;
  };
  for (const Case& each : {Case{AirState::kReady, "READY"}, Case{AirState::kPlaying, "ON AIR"},
                           Case{AirState::kPaused, "PAUSED"}, Case{AirState::kLive, "LIVE"},
                           Case{AirState::kSilent, "SILENT"}}) {
    screen.status.state = each.state;
    desktop::StateLamp lamp;
    lamp.Follow(screen);
    EXPECT_EQ(lamp.word().toStdString(), each.word);
    lamp.Leave();
  }
}

TEST(MinutesAndSecondsText, CountsHoursOnlyWhenThereAreSome) {
  EXPECT_EQ(desktop::MinutesAndSeconds(0), QStringLiteral("0:00"));
  EXPECT_EQ(desktop::MinutesAndSeconds(59.9), QStringLiteral("0:59"));
  EXPECT_EQ(desktop::MinutesAndSeconds(605), QStringLiteral("10:05"));
  EXPECT_EQ(desktop::MinutesAndSeconds(3725), QStringLiteral("1:02:05"));
  EXPECT_EQ(desktop::MinutesAndSeconds(-1), QStringLiteral("0:00"));
}

TEST(MeterBarTest, RisesAtOnce_FallsSlowly_HoldsThePeak) {
  desktop::MeterBar bar;
  EXPECT_TRUE(bar.at_rest());
  bar.Feed(1.0F, 0.03);
  EXPECT_DOUBLE_EQ(bar.decibels(), 0);
  bar.Feed(0, 0.5);
  EXPECT_DOUBLE_EQ(bar.decibels(), -12);
  EXPECT_DOUBLE_EQ(bar.held(), 0);
  bar.Feed(0, 1);
  EXPECT_DOUBLE_EQ(bar.held(), bar.decibels());
  bar.Feed(0, 10);
  bar.Feed(0, 10);
  EXPECT_TRUE(bar.at_rest()) << "a silent meter must come to rest, or it repaints for ever";
}

TEST(Themes, StyleSheetHasNoColourLeftToFill) {
  for (const desktop::Theme theme : {desktop::Theme::kLight, desktop::Theme::kDark}) {
    EXPECT_FALSE(desktop::StyleSheetOf(theme).contains(u'@'));
    EXPECT_EQ(desktop::ThemeOf(desktop::PaletteOf(theme)), theme);
  }
}

}  // namespace
}  // namespace quixair::testing
