#include "desktop/views/state_lamp.h"

#include <QPainter>

#include "desktop/views/fitted_text.h"

namespace quixair::desktop {
namespace {

constexpr qint64 kFlashPeriod = 500;  // milliseconds

struct Plate {
  QColor back;
  QColor text;
};

Plate PlateOf(AirState state, bool flash) {
  switch (state) {
    case AirState::kPlaying:
      return {QColor(0x14, 0x8f, 0x46), Qt::white};
    case AirState::kPaused:
      return {QColor(0xf5, 0xb8, 0x00), Qt::black};
    case AirState::kLive:
      return {QColor(0x1d, 0x6f, 0xd6), Qt::white};
    case AirState::kSilent:
      return flash ? Plate{Qt::white, QColor(0xd0, 0x12, 0x12)} : Plate{QColor(0xd0, 0x12, 0x12), Qt::white};
    case AirState::kReady:
      break;
  }
  return {QColor(0x52, 0x61, 0x72), Qt::white};
}

}  // namespace

StateLamp::StateLamp(QWidget* parent) : AirView(parent, 10) {
  since_start_.start();
}

QString StateLamp::word() const {
  switch (state_) {
    case AirState::kPlaying:
      return QStringLiteral("ON AIR");
    case AirState::kPaused:
      return QStringLiteral("PAUSED");
    case AirState::kLive:
      return QStringLiteral("LIVE");
    case AirState::kSilent:
      return QStringLiteral("SILENT");
    case AirState::kReady:
      break;
  }
  return QStringLiteral("READY");
}

void StateLamp::Look(OnAirScreen& screen) {
  const OnAirStatus status = screen.on_air_status();
  const bool flash = status.state == AirState::kSilent && (since_start_.elapsed() / kFlashPeriod) % 2 == 1;
  if (status.state == state_ && status.stop_set == stop_set_ && flash == flash_) return;
  state_ = status.state;
  stop_set_ = status.stop_set;
  flash_ = flash;
  setAccessibleName(word());
  update();
}

void StateLamp::paintEvent(QPaintEvent*) {
  const Plate plate = PlateOf(state_, flash_);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(plate.back);
  painter.drawRoundedRect(rect(), 6, 6);
  painter.setPen(plate.text);
  QFont bold = font();
  bold.setBold(true);
  const bool second_line = stop_set_ && state_ == AirState::kPlaying;
  QRect place = rect().adjusted(10, 4, -10, -4);
  if (second_line) {
    const QRect lower = place.adjusted(0, place.height() * 2 / 3, 0, 0);
    place.setBottom(lower.top());
    painter.setFont(FittedFont(bold, QStringLiteral("STOP SET"), lower.size()));
    painter.drawText(lower, Qt::AlignCenter, QStringLiteral("STOP SET"));
  }
  painter.setFont(FittedFont(bold, word(), place.size()));
  painter.drawText(place, Qt::AlignCenter, word());
}

}  // namespace quixair::desktop
