#include "desktop/views/meter_bar.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace quixair::desktop {
namespace {

constexpr double kFallPerSecond = 24;
constexpr double kHoldSeconds = 1.2;
constexpr double kWarm = -12;
constexpr double kHot = -3;

const QColor kTrack(0x24, 0x2c, 0x36);
const QColor kCool(0x2f, 0xb3, 0x63);
const QColor kWarmColor(0xe6, 0xc2, 0x29);
const QColor kHotColor(0xe5, 0x3d, 0x32);
const QColor kUnheard(0x5a, 0x64, 0x70);

double Share(double decibels) {
  return std::clamp(1 - decibels / MeterBar::kFloor, 0.0, 1.0);
}

void PaintStretch(QPainter& painter, const QRectF& bar, double from, double to, double level,
                  const QColor& color) {
  const double end = std::min(to, level);
  if (end <= from) return;
  const double left = bar.left() + bar.width() * Share(from);
  painter.fillRect(QRectF(left, bar.top(), bar.left() + bar.width() * Share(end) - left, bar.height()),
                   color);
}

}  // namespace

void MeterBar::Feed(float peak, double seconds) {
  const double level =
      peak > 0 ? std::clamp(20 * std::log10(static_cast<double>(peak)), kFloor, 0.0) : kFloor;
  decibels_ = std::max({level, decibels_ - kFallPerSecond * seconds, kFloor});
  held_for_ += seconds;
  if (level >= held_ || held_for_ > kHoldSeconds) {
    held_ = decibels_;
    held_for_ = 0;
  }
}

bool MeterBar::at_rest() const {
  return decibels_ <= kFloor && held_ <= kFloor;
}

void PaintMeterBar(QPainter& painter, const QRectF& bar, const MeterBar& meter, bool heard) {
  painter.fillRect(bar, kTrack);
  PaintStretch(painter, bar, MeterBar::kFloor, kWarm, meter.decibels(), heard ? kCool : kUnheard);
  PaintStretch(painter, bar, kWarm, kHot, meter.decibels(), heard ? kWarmColor : kUnheard);
  PaintStretch(painter, bar, kHot, 0, meter.decibels(), heard ? kHotColor : kUnheard);
  if (meter.held() <= MeterBar::kFloor) return;
  const double at = bar.left() + (bar.width() - 2) * Share(meter.held());
  painter.fillRect(QRectF(at, bar.top(), 2, bar.height()), !heard                ? kUnheard
                                                           : meter.held() > kHot ? kHotColor
                                                                                 : QColor(Qt::white));
}

void PaintMeterScale(QPainter& painter, const QRectF& place) {
  painter.setPen(kMeterScale);
  for (const int mark : {-48, -36, -24, -12, -6, 0}) {
    const double at = place.left() + place.width() * Share(mark);
    const QRectF around(at - 20, place.top(), 40, place.height());
    const QRectF inside = mark == 0     ? around.translated(-20, 0)
                          : mark == -48 ? around.translated(20, 0)
                                        : around;
    const int side = mark == 0 ? Qt::AlignRight : mark == -48 ? Qt::AlignLeft : Qt::AlignHCenter;
    painter.drawText(inside, side | Qt::AlignVCenter, QString::number(mark));
  }
}

}  // namespace quixair::desktop
