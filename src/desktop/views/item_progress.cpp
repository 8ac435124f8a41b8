#include "desktop/views/item_progress.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/views/fitted_text.h"

namespace quixair::desktop {
namespace {

constexpr double kLastSeconds = 10;
constexpr int kBarHeight = 14;
const QColor kTrack(0x2b, 0x34, 0x40);
const QColor kFill(0x35, 0xb8, 0x6a);
const QColor kStopSetFill(0xf5, 0xd0, 0x2a);
const QColor kEndFill(0xff, 0x9b, 0x21);
const QColor kFigures(0xf4, 0xf7, 0xfa);
const QColor kCaption(0x93, 0xa1, 0xb1);

struct Figure {
  QString caption;
  QString text;
  Qt::AlignmentFlag side;
};

void PaintFigure(QPainter& painter, const QRect& place, const Figure& figure, const QFont& base) {
  QFont small = base;
  small.setBold(false);
  small.setPointSizeF(8.5);
  painter.setFont(small);
  painter.setPen(kCaption);
  const int caption_height = painter.fontMetrics().height();
  painter.drawText(place, static_cast<int>(figure.side) | Qt::AlignTop, figure.caption);
  const QRect lower = place.adjusted(0, caption_height - 2, 0, 0);
  QFont bold = base;
  bold.setBold(true);
  painter.setFont(FittedFont(bold, QStringLiteral("00:00"), lower.size(), 64));
  painter.setPen(kFigures);
  painter.drawText(lower, static_cast<int>(figure.side) | Qt::AlignVCenter, figure.text);
}

}  // namespace

QString MinutesAndSeconds(double seconds) {
  const int whole = static_cast<int>(std::max(0.0, seconds));
  const QString tail = QStringLiteral("%1").arg(whole % 60, 2, 10, QChar(u'0'));
  const int minutes = whole / 60;
  if (minutes < 60) return QStringLiteral("%1:%2").arg(minutes).arg(tail);
  return QStringLiteral("%1:%2:%3").arg(minutes / 60).arg(minutes % 60, 2, 10, QChar(u'0')).arg(tail);
}

ItemProgress::ItemProgress(QWidget* parent) : AirView(parent, 20) {}

void ItemProgress::Look(OnAirScreen& screen) {
  const OnAirStatus now = screen.on_air_status();
  const bool same = now.state == status_.state && now.stop_set == status_.stop_set &&
                    now.elapsed_seconds == status_.elapsed_seconds &&
                    now.length_seconds == status_.length_seconds;
  status_ = now;
  if (!same) update();
}

void ItemProgress::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool known = status_.length_seconds > 0 && status_.state != AirState::kReady;
  const double remaining = std::max(0.0, status_.length_seconds - status_.elapsed_seconds);
  const QString none = QStringLiteral("–:––");
  const QRect figures = rect().adjusted(0, 0, 0, -kBarHeight - 6);
  const int third = figures.width() / 4;
  PaintFigure(
      painter, QRect(figures.left(), figures.top(), third, figures.height()),
      {QStringLiteral("ELAPSED"), known ? MinutesAndSeconds(status_.elapsed_seconds) : none, Qt::AlignLeft},
      font());
  PaintFigure(
      painter, QRect(figures.left() + third, figures.top(), third, figures.height()),
      {QStringLiteral("LENGTH"), known ? MinutesAndSeconds(status_.length_seconds) : none, Qt::AlignLeft},
      font());
  // Rounded up, so that the count reaches 0:00 when the item ends and not a second before.
  PaintFigure(
      painter, figures.adjusted(2 * third, 0, 0, 0),
      {QStringLiteral("REMAINING"), known ? MinutesAndSeconds(std::ceil(remaining)) : none, Qt::AlignRight},
      font());

  const QRectF track(0, height() - kBarHeight, width(), kBarHeight);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kTrack);
  painter.drawRoundedRect(track, 4, 4);
  if (!known) return;
  QRectF done = track;
  done.setWidth(track.width() * std::clamp(status_.elapsed_seconds / status_.length_seconds, 0.0, 1.0));
  const QColor running = status_.stop_set ? kStopSetFill : kFill;
  painter.setBrush(remaining <= kLastSeconds ? kEndFill : running);
  painter.setClipRect(done);
  painter.drawRoundedRect(track, 4, 4);
}

}  // namespace quixair::desktop
