#include "desktop/views/big_clock.h"

#include <QPainter>

#include "desktop/station_text.h"
#include "desktop/views/fitted_text.h"
#include "station/platform/civil_time.h"
#include "station/screen/screen.h"

namespace quixair::desktop {
namespace {
constexpr int kLooksPerSecond = 20;  // a second is shown at most a twentieth late
}

BigClock::BigClock(QWidget* parent) : QWidget(parent) {
  timer_.setInterval(1000 / kLooksPerSecond);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
}

void BigClock::Follow(Screen& screen) {
  clock_ = &screen.platform().clock;
  timer_.start();
  Look();
}

void BigClock::Leave() {
  timer_.stop();
  clock_ = nullptr;
}

void BigClock::Look() {
  if (clock_ == nullptr) return;
  const CivilTime now = clock_->Now();
  const QString time = ToQt(HourMinuteSecondAmPm(now));
  if (time == time_) return;
  time_ = time;
  day_ = ToQt(DayName(now) + "  " + MonthDayLongYear(now));
  update();
}

void BigClock::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const int upper_height = height() * 2 / 3;
  const QRect upper(0, 0, width(), upper_height);
  QFont bold = font();
  bold.setBold(true);
  // Sized for the widest figures, so that the clock does not breathe.
  painter.setFont(FittedFont(bold, QStringLiteral("00:00:00 AM"), upper.size()));
  painter.drawText(upper, Qt::AlignRight | Qt::AlignVCenter, time_);
  const QRect lower(0, upper_height, width(), height() - upper_height);
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.setFont(FittedFont(font(), QStringLiteral("Wed  00-00-0000"), lower.size(), 14));
  painter.drawText(lower, Qt::AlignRight | Qt::AlignVCenter, day_);
}

}  // namespace quixair::desktop
