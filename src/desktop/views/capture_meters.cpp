#include "desktop/views/capture_meters.h"

#include <QPainter>
#include <algorithm>

#include "station/screen/recorder_control.h"
#include "station/screen/screen.h"

namespace quixair::desktop {
namespace {

constexpr int kLookMilliseconds = 33;
constexpr double kClipShown = 4;
constexpr float kFullScale = 0.9999F;
constexpr double kNameWidth = 18;
constexpr double kClipWidth = 46;
constexpr double kTallestBar = 44;
constexpr double kBetween = 10;
const QColor kClipColor(0xe5, 0x3d, 0x32);

}  // namespace

CaptureMeters::CaptureMeters(QWidget* parent) : QWidget(parent) {
  timer_.setInterval(kLookMilliseconds);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
}

void CaptureMeters::Follow(Screen& screen) {
  recorder_ = dynamic_cast<WaveRecorder*>(screen.FindControl("MMWaveRecorderX"));
  since_look_.start();
  if (recorder_ != nullptr) timer_.start();
}

void CaptureMeters::Leave() {
  timer_.stop();
  recorder_ = nullptr;
}

void CaptureMeters::Look() {
  const double seconds = static_cast<double>(since_look_.restart()) / 1000;
  const Levels peaks = recorder_->TakeLevels();
  const std::array<float, 2> levels = {peaks.left, peaks.right};
  for (std::size_t i = 0; i < sides_.size(); ++i) {
    sides_[i].bar.Feed(levels[i], seconds);
    sides_[i].clipped_for =
        levels[i] >= kFullScale ? kClipShown : std::max(0.0, sides_[i].clipped_for - seconds);
  }
  update();
}

void CaptureMeters::PaintSide(QPainter& painter, const QRectF& place, const Side& side,
                              const QString& name) const {
  painter.setPen(kMeterScale);
  painter.drawText(QRectF(place.left(), place.top(), kNameWidth, place.height()), Qt::AlignVCenter, name);
  PaintMeterBar(painter, place.adjusted(kNameWidth, 0, -kClipWidth - 6, 0), side.bar);
  const QRectF mark(place.right() - kClipWidth, place.top(), kClipWidth, place.height());
  painter.fillRect(mark, side.clipped_for > 0 ? kClipColor : kMeterBack.lighter(160));
  painter.setPen(side.clipped_for > 0 ? QColor(Qt::white) : kMeterScale.darker(200));
  painter.drawText(mark, Qt::AlignCenter, QStringLiteral("CLIP"));
}

void CaptureMeters::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kMeterBack);
  painter.drawRoundedRect(rect(), 6, 6);
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QRectF inside = QRectF(rect()).adjusted(10, 8, -10, -4 - kMeterScaleHeight);
  const double height = std::clamp((inside.height() - kBetween) / 2, 4.0, kTallestBar);
  const double top = inside.top() + (inside.height() - 2 * height - kBetween) / 2;
  PaintSide(painter, {inside.left(), top, inside.width(), height}, sides_[0], QStringLiteral("L"));
  PaintSide(painter, {inside.left(), top + height + kBetween, inside.width(), height}, sides_[1],
            QStringLiteral("R"));
  QFont small = font();
  small.setPointSizeF(8);
  painter.setFont(small);
  PaintMeterScale(painter, {inside.left() + kNameWidth, inside.bottom(),
                            inside.width() - kNameWidth - kClipWidth - 6, kMeterScaleHeight});
}

}  // namespace quixair::desktop
