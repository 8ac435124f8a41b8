#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QTest>

#include "desktop/theme.h"
#include "desktop/views/item_progress.h"
#include "desktop/views/level_meters.h"
#include "desktop/views/marked_lists.h"
#include "desktop/views/meter_bar.h"
#include "desktop/views/state_lamp.h"
#include "desktop/views/stop_set_panel.h"
#include "desktop/views/warning_banner.h"
#include "station/platform/civil_time.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class StubOnAir : public Screen, public OnAirScreen {
 public:
  explicit StubOnAir(const Platform& platform) : Screen(platform, "Stub", "Stub") {}
  OnAirStatus on_air_status() const override { return status; }
  std::vector<MediaControl*> sounding_channels() override { return {}; }
  std::optional<StopSetStatus> stop_set_status() const override { return stop_sets; }
  OnAirStatus status;
  std::optional<StopSetStatus> stop_sets;
};

/// A day of twelve sets, the next at 6.30 in the evening.
StopSetStatus Plan(StopSetState state, int minutes_to_next = 42) {
  StopSetStatus plan;
  plan.state = state;
  plan.template_name = "MON.TPD";
  plan.set_count = 12;
  plan.total_seconds = 1450;
  plan.next_time = "06:30 PM";
  plan.minutes_to_next = minutes_to_next;
  return plan;
}

class CountedPanel : public desktop::StopSetPanel {
 public:
  using StopSetPanel::Look;
  int repaints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++repaints;
    StopSetPanel::paintEvent(event);
  }
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
    station_.media().output_trouble = "NO SOUND OUTPUT - the sound card has gone.";
    lamp.Follow(screen);
    EXPECT_EQ(lamp.word().toStdString(), "NO SOUND");
    EXPECT_EQ(lamp.second_line().toStdString(), each.state == AirState::kPlaying ? "" : each.word);
    EXPECT_EQ(lamp.grab().toImage().pixelColor(lamp.width() / 2, 2), QColor(0xd0, 0x12, 0x12));
    station_.media().output_trouble.clear();
    lamp.Leave();
  }
}

TEST(MeterBars, AreGreyWhileNobodyHearsThem) {
  desktop::MeterBar loud;
  loud.Feed(1, 0.1);
  for (const bool heard : {true, false}) {
    QImage image(480, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    desktop::PaintMeterBar(painter, image.rect(), loud, heard);
    int most_colour = 0;
    for (int x = 0; x < image.width(); ++x)
      most_colour = std::max(most_colour, image.pixelColor(x, 5).saturation());
    EXPECT_EQ(most_colour > 150, heard) << most_colour;
  }
}

TEST(StopSetTexts, StateAndPlanOfEachState) {
  struct Case {
    StopSetState state;
    const char* word;
    const char* next;
    const char* away;
    const char* facts;
  };
  const char* const none = "";
  const char* const facts = "MON.TPD  ·  12 sets  ·  24:10 in all";
  for (const Case& each :
       {Case{StopSetState::kOff, "Stop sets off", none, none, none},
        Case{StopSetState::kNotChosen, "CHOOSE A TEMPLATE", "No template yet", none, none},
        Case{StopSetState::kMissing, "TEMPLATE MISSING", "No sets today", none, "MON.TPD"},
        Case{StopSetState::kWrongDay, "WRONG DAY", "No sets today", none, "MON.TPD"},
        Case{StopSetState::kScanning, "SCANNING", "Next 06:30 PM", "in 42 min", facts},
        Case{StopSetState::kDue, "STOP SET DUE", "Next 06:30 PM", "in 42 min", facts},
        Case{StopSetState::kPlaying, "STOP SET PLAYING", "Next 06:30 PM", "in 42 min", facts},
        Case{StopSetState::kPaused, "PAUSED", "Next 06:30 PM", "in 42 min", facts}}) {
    const desktop::StopSetTexts texts = desktop::TextsOf(Plan(each.state), false);
    EXPECT_EQ(texts.state.join(u' ').toStdString(), each.word);
    EXPECT_EQ(texts.next.toStdString(), each.next) << each.word;
    EXPECT_EQ(texts.away.toStdString(), each.away) << each.word;
    EXPECT_EQ(texts.facts.toStdString(), each.facts) << each.word;
  }
}

TEST(StopSetTexts, TimeToTheNextSet_InHoursWhenThereAreSome) {
  for (const auto& [minutes, text] : std::map<int, const char*>{{0, "now"},
                                                                {1, "in 1 min"},
                                                                {59, "in 59 min"},
                                                                {60, "in 1 h"},
                                                                {72, "in 1 h 12 min"},
                                                                {600, "in 10 h"}}) {
    EXPECT_EQ(desktop::TextsOf(Plan(StopSetState::kScanning, minutes), false).away.toStdString(), text);
  }
}

TEST(StopSetTexts, NothingLeftAndNothingPlanned_AreToldApart) {
  StopSetStatus plan = Plan(StopSetState::kScanning);
  plan.next_time.clear();
  EXPECT_EQ(desktop::TextsOf(plan, false).next, QStringLiteral("No more sets today"));
  EXPECT_EQ(desktop::TextsOf(plan, false).away, QString());
  plan.set_count = 1;
  EXPECT_EQ(desktop::TextsOf(plan, false).facts, QStringLiteral("MON.TPD  ·  1 set  ·  24:10 in all"));
  plan.set_count = 0;
  EXPECT_EQ(desktop::TextsOf(plan, false).next, QStringLiteral("No sets in template"));
}

TEST(StopSetTexts, Pause_TellsWhatEndsIt) {
  StopSetStatus plan = Plan(StopSetState::kPaused);
  EXPECT_EQ(desktop::TextsOf(plan, false).detail, QStringLiteral("waits for Begin Next"));
  EXPECT_EQ(desktop::TextsOf(plan, true).detail, QStringLiteral("waits for Continue"));
  plan.override_seconds = 42;
  EXPECT_EQ(desktop::TextsOf(plan, false).detail, QStringLiteral("resumes in 0:42"));
  plan.state = StopSetState::kPlaying;
  EXPECT_EQ(desktop::TextsOf(plan, false).detail, QString());
}

TEST_F(Views, StopSetPanel_RepaintsOnlyWhenATextChanges) {
  StubOnAir screen(station_.platform());
  screen.stop_sets = Plan(StopSetState::kPaused);
  screen.stop_sets->override_seconds = 42;
  CountedPanel panel;
  panel.show();
  panel.Look(screen);
  QApplication::processEvents();
  const int before = panel.repaints;
  ASSERT_GT(before, 0) << "the panel must have been shown";
  panel.Look(screen);
  QApplication::processEvents();
  EXPECT_EQ(panel.repaints, before);
  screen.stop_sets->override_seconds = 41;
  panel.Look(screen);
  QApplication::processEvents();
  EXPECT_EQ(panel.repaints, before + 1);
  EXPECT_EQ(panel.texts().detail, QStringLiteral("resumes in 0:41"));
}

TEST_F(Views, StopSetPanel_IsOffOnAScreenWithoutStopSets) {
  StubOnAir screen(station_.platform());
  screen.stop_sets = Plan(StopSetState::kScanning);
  desktop::StopSetPanel panel;
  panel.Follow(screen);
  EXPECT_EQ(panel.accessibleName(), QStringLiteral("SCANNING"));
  screen.stop_sets.reset();
  panel.Follow(screen);
  EXPECT_EQ(panel.accessibleName(), QStringLiteral("Stop sets off"));
}

TEST(WarningBannerTest, LongestWarningFitsInTwoLinesAtEveryWidth) {
  desktop::WarningBanner banner;
  banner.setText(QStringLiteral("NO SCHEDULED PLAYBACK TODAY. ").repeated(8).left(220));
  double last_points = 0;
  for (const int width : {1004, 1260, 1900}) {
    banner.resize(width, banner.sizeHint().height());
    const QFontMetrics metrics(banner.TextFont());
    const QRect place = banner.TextPlace();
    const QRect taken = metrics.boundingRect(place, Qt::AlignCenter | Qt::TextWordWrap, banner.text());
    EXPECT_TRUE(place.contains(taken)) << "at " << width;
    EXPECT_LE(taken.height(), 2 * metrics.lineSpacing()) << "at " << width;
    EXPECT_GT(banner.TextFont().pointSizeF(), last_points) << "a wider banner has room for larger letters";
    last_points = banner.TextFont().pointSizeF();
  }
}

class OneList : public Screen {
 public:
  explicit OneList(const Platform& platform) : Screen(platform, "Stub", "Stub") {}
  ListBox List1{*this, "List1"};
};

bool IsBold(const desktop::RowList& view, int row) {
  return view.model()->index(row, 0).data(Qt::FontRole).value<QFont>().bold();
}

TEST_F(Views, StopSetRows_TimesStandOutAndWhatHadItsTurnFades) {
  OneList screen(station_.platform());
  for (const char* row : {"--Stop-Set Rotation List--", "*06:30 PM", "*S0001", "S0002", "07:30 PM"}) {
    screen.List1.AddRow(row);
  }
  desktop::StopSetRows view;
  view.list_rows().SetSource(&screen.List1);
  const std::vector<bool> bold = {false, true, false, false, true};
  const std::vector<bool> faded = {false, true, true, false, false};
  for (int row = 0; row < 5; ++row) {
    EXPECT_EQ(IsBold(view, row), bold[static_cast<std::size_t>(row)]) << screen.List1.row(row);
    EXPECT_EQ(view.model()->index(row, 0).data(Qt::ForegroundRole).isValid(),
              faded[static_cast<std::size_t>(row)])
        << screen.List1.row(row);
  }
}

TEST_F(Views, StopSetRows_RowInPlayStaysInSight) {
  OneList screen(station_.platform());
  for (int row = 0; row < 2000; ++row) screen.List1.AddRow("S" + std::to_string(row));
  desktop::StopSetRows view;
  view.list_rows().SetSource(&screen.List1);
  view.resize(200, 300);
  view.show();
  QApplication::processEvents();
  const auto in_sight = [&view](int row) {
    return view.viewport()->rect().contains(view.visualRect(view.model()->index(row, 0)));
  };
  view.ShowSelection({1500});
  EXPECT_TRUE(in_sight(1500));
  EXPECT_TRUE(in_sight(1502)) << "what comes after it is seen too";
  view.ResetRows();
  view.ShowSelection({1501});
  view.resize(200, 80);
  QApplication::processEvents();
  EXPECT_TRUE(in_sight(1501));
}

TEST_F(Views, DayTemplates_TodayStandsOutAndTheFirstArrowChoosesIt) {
  OneList screen(station_.platform());
  const std::string today = DayName(station_.platform().clock.Now());
  const std::string other = today == "Mon" ? "TUE.TPD" : "MON.TPD";
  for (const std::string& row : {other, today + ".tpd", today + ".tpl"}) screen.List1.AddRow(row);
  desktop::DayTemplates view;
  view.list_rows().SetSource(&screen.List1);
  view.Follow(screen);
  EXPECT_FALSE(IsBold(view, 0));
  EXPECT_TRUE(IsBold(view, 1));
  EXPECT_FALSE(IsBold(view, 2)) << "no daily template";
  std::vector<int> chosen;
  view.on_select = [&chosen](const std::vector<int>& rows) { chosen = rows; };
  view.show();
  view.activateWindow();
  view.setFocus();
  QApplication::processEvents();
  EXPECT_EQ(chosen, std::vector<int>()) << "nothing is chosen for the operator";
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(chosen, std::vector<int>{1});
  QTest::keyClick(&view, Qt::Key_Up);
  EXPECT_EQ(chosen, std::vector<int>{0});
}

TEST(MinutesAndSecondsText, CountsHoursOnlyWhenThereAreSome) {
  for (const auto& [seconds, text] : std::map<double, const char*>{
           {-1, "0:00"}, {0, "0:00"}, {59.9, "0:59"}, {605, "10:05"}, {3725, "1:02:05"}}) {
    EXPECT_EQ(desktop::MinutesAndSeconds(seconds).toStdString(), text);
  }
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
