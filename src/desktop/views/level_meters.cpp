#include "desktop/views/level_meters.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "station/platform/controls.h"

namespace quixair::desktop {
namespace {

constexpr double kFallPerSecond = 24;
constexpr double kHoldSeconds = 1.2;
constexpr double kWarm = -12;
constexpr double kHot = -3;
constexpr int kScaleHeight = 12;
constexpr int kNumberWidth = 14;
constexpr double kTallestBar = 34;
constexpr double kBetweenChannels = 8;

const QColor kBack(0x14, 0x19, 0x20);
const QColor kTrack(0x24, 0x2c, 0x36);
const QColor kCool(0x2f, 0xb3, 0x63);
const QColor kWarmColor(0xe6, 0xc2, 0x29);
const QColor kHotColor(0xe5, 0x3d, 0x32);
const QColor kScale(0x8b, 0x99, 0xa9);

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

void PaintBar(QPainter& painter, const QRectF& bar, const MeterBar& meter) {
  painter.fillRect(bar, kTrack);
  PaintStretch(painter, bar, MeterBar::kFloor, kWarm, meter.decibels(), kCool);
  PaintStretch(painter, bar, kWarm, kHot, meter.decibels(), kWarmColor);
  PaintStretch(painter, bar, kHot, 0, meter.decibels(), kHotColor);
  if (meter.held() <= MeterBar::kFloor) return;
  const double at = bar.left() + (bar.width() - 2) * Share(meter.held());
  painter.fillRect(QRectF(at, bar.top(), 2, bar.height()),
                   meter.held() > kHot ? kHotColor : QColor(Qt::white));
}

void PaintScale(QPainter& painter, const QRectF& place) {
  painter.setPen(kScale);
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

LevelMeters::LevelMeters(QWidget* parent) : AirView(parent, 30) {
  since_look_.start();
}

void LevelMeters::Look(OnAirScreen& screen) {
  const double seconds = static_cast<double>(since_look_.restart()) / 1000;
  const std::vector<MediaControl*> sounding = screen.sounding_channels();
  bool moved = channels_.size() != sounding.size();
  channels_.resize(sounding.size());
  for (std::size_t i = 0; i < sounding.size(); ++i) {
    const Levels peaks = sounding[i]->TakeLevels();
    Pair& pair = channels_[i];
    const bool at_rest = pair[0].at_rest() && pair[1].at_rest();
    pair[0].Feed(peaks.left, seconds);
    pair[1].Feed(peaks.right, seconds);
    moved = moved || !at_rest || !pair[0].at_rest() || !pair[1].at_rest();
  }
  if (moved) update();
}

void LevelMeters::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kBack);
  painter.drawRoundedRect(rect(), 6, 6);
  painter.setRenderHint(QPainter::Antialiasing, false);
  QFont small = font();
  small.setPointSizeF(7);
  painter.setFont(small);
  const QRectF inside = QRectF(rect()).adjusted(8, 6, -8, -4);
  const auto count = static_cast<double>(std::max<std::size_t>(1, channels_.size()));
  QRectF bars = inside.adjusted(kNumberWidth, 0, 0, -kScaleHeight);
  const double bar_height = std::clamp((bars.height() / count - kBetweenChannels) / 2 - 1, 2.0, kTallestBar);
  const double channel_height = 2 * bar_height + kBetweenChannels;
  const double spare = std::max(0.0, bars.height() - count * channel_height);
  bars.adjust(0, spare / 2, 0, -spare / 2);
  for (std::size_t i = 0; i < channels_.size(); ++i) {
    const double top = bars.top() + channel_height * static_cast<double>(i);
    painter.setPen(kScale);
    painter.drawText(QRectF(inside.left(), top, kNumberWidth, 2 * bar_height + 2),
                     Qt::AlignLeft | Qt::AlignVCenter, QString::number(i + 1));
    PaintBar(painter, {bars.left(), top, bars.width(), bar_height}, channels_[i][0]);
    PaintBar(painter, {bars.left(), top + bar_height + 2, bars.width(), bar_height}, channels_[i][1]);
  }
  PaintScale(painter, {bars.left(), bars.bottom(), bars.width(), kScaleHeight});
}

}  // namespace quixair::desktop
