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

const QColor kRed(0xd0, 0x12, 0x12);

Plate PlateOf(AirState state, bool flash) {
  switch (state) {
    case AirState::kPlaying:
      return {QColor(0x14, 0x8f, 0x46), Qt::white};
    case AirState::kPaused:
      return {QColor(0xf5, 0xb8, 0x00), Qt::black};
    case AirState::kLive:
      return {QColor(0x1d, 0x6f, 0xd6), Qt::white};
    case AirState::kSilent:
      return flash ? Plate{Qt::white, kRed} : Plate{kRed, Qt::white};
    case AirState::kReady:
      break;
  }
  return {QColor(0x52, 0x61, 0x72), Qt::white};
}

QString WordOf(AirState state) {
  switch (state) {
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

}  // namespace

StateLamp::StateLamp(QWidget* parent) : AirView(parent, 10) {
  since_start_.start();
}

QString StateLamp::word() const {
  return heard_ ? WordOf(state_) : QStringLiteral("NO SOUND");
}

QString StateLamp::second_line() const {
  if (state_ == AirState::kPlaying) return stop_set_ ? QStringLiteral("STOP SET") : QString();
  return heard_ ? QString() : WordOf(state_);
}

void StateLamp::Look(OnAirScreen& screen) {
  const OnAirStatus status = screen.on_air_status();
  const bool flash = status.state == AirState::kSilent && (since_start_.elapsed() / kFlashPeriod) % 2 == 1;
  if (status.state == state_ && status.stop_set == stop_set_ && flash == flash_ && heard() == heard_) return;
  state_ = status.state;
  stop_set_ = status.stop_set;
  flash_ = flash;
  heard_ = heard();
  setAccessibleName(word());
  update();
}

void StateLamp::paintEvent(QPaintEvent*) {
  const Plate plate = heard_ ? PlateOf(state_, flash_) : Plate{kRed, Qt::white};
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(plate.back);
  painter.drawRoundedRect(rect(), 6, 6);
  painter.setPen(plate.text);
  QFont bold = font();
  bold.setBold(true);
  QRect place = rect().adjusted(10, 4, -10, -4);
  if (const QString second = second_line(); !second.isEmpty()) {
    const QRect lower = place.adjusted(0, place.height() * 2 / 3, 0, 0);
    place.setBottom(lower.top());
    painter.setFont(FittedFont(bold, second, lower.size()));
    painter.drawText(lower, Qt::AlignCenter, second);
  }
  painter.setFont(FittedFont(bold, word(), place.size()));
  painter.drawText(place, Qt::AlignCenter, word());
}

}  // namespace quixair::desktop
