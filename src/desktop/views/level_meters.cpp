#include "desktop/views/level_meters.h"

#include <QPainter>
#include <algorithm>

#include "station/screen/controls.h"

namespace quixair::desktop {
namespace {

constexpr int kNumberWidth = 14;
constexpr double kTallestBar = 34;
constexpr double kBetweenChannels = 8;

}  // namespace

LevelMeters::LevelMeters(QWidget* parent) : AirView(parent, 30) {
  since_look_.start();
}

void LevelMeters::Look(OnAirScreen& screen) {
  const double seconds = static_cast<double>(since_look_.restart()) / 1000;
  const std::vector<MediaControl*> sounding = screen.sounding_channels();
  bool moved = channels_.size() != sounding.size() || heard() != heard_;
  heard_ = heard();
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
  painter.setBrush(kMeterBack);
  painter.drawRoundedRect(rect(), 6, 6);
  painter.setRenderHint(QPainter::Antialiasing, false);
  QFont small = font();
  small.setPointSizeF(7);
  painter.setFont(small);
  const QRectF inside = QRectF(rect()).adjusted(8, 6, -8, -4);
  const auto count = static_cast<double>(std::max<std::size_t>(1, channels_.size()));
  QRectF bars = inside.adjusted(kNumberWidth, 0, 0, -kMeterScaleHeight);
  const double bar_height = std::clamp((bars.height() / count - kBetweenChannels) / 2 - 1, 2.0, kTallestBar);
  const double channel_height = 2 * bar_height + kBetweenChannels;
  const double spare = std::max(0.0, bars.height() - count * channel_height);
  bars.adjust(0, spare / 2, 0, -spare / 2);
  for (std::size_t i = 0; i < channels_.size(); ++i) {
    const double top = bars.top() + channel_height * static_cast<double>(i);
    painter.setPen(kMeterScale);
    painter.drawText(QRectF(inside.left(), top, kNumberWidth, 2 * bar_height + 2),
                     Qt::AlignLeft | Qt::AlignVCenter, QString::number(i + 1));
    PaintMeterBar(painter, {bars.left(), top, bars.width(), bar_height}, channels_[i][0], heard_);
    PaintMeterBar(painter, {bars.left(), top + bar_height + 2, bars.width(), bar_height}, channels_[i][1],
                  heard_);
  }
  PaintMeterScale(painter, {bars.left(), bars.bottom(), bars.width(), kMeterScaleHeight});
}

}  // namespace quixair::desktop
