#include "desktop/views/warning_banner.h"

#include <QPainter>

namespace quixair::desktop {
namespace {

constexpr int kBlinkInterval = 1000;  // milliseconds
constexpr int kTextFlags = Qt::AlignCenter | Qt::TextWordWrap;
constexpr int kMostLines = 2;
constexpr int kBorder = 4;
constexpr int kSignSide = 44;
constexpr double kLargestPoints = 20;
constexpr double kSmallestPoints = 6;
constexpr double kStep = 0.5;
const QColor kGround(0xc6, 0x14, 0x14);

/// Fits in the height of the place and in two lines.
bool Fits(const QFont& font, const QString& text, const QRect& place) {
  const QFontMetrics metrics(font);
  const QRect taken = metrics.boundingRect(place, kTextFlags, text);
  return taken.width() <= place.width() && taken.height() <= place.height() &&
         taken.height() <= kMostLines * metrics.lineSpacing();
}

void PaintSign(QPainter& painter, const QRectF& place) {
  painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  const QPointF top(place.center().x(), place.top() + 3);
  painter.drawPolygon(
      QPolygonF({top, place.bottomRight() - QPointF(3, 5), place.bottomLeft() + QPointF(3, -5)}));
  painter.setPen(QPen(kGround, 5, Qt::SolidLine, Qt::RoundCap));
  const QPointF dot(place.center().x(), place.bottom() - 12);
  painter.drawLine(place.center() - QPointF(0, 5), dot - QPointF(0, 8));
  painter.drawPoint(dot);
}

}  // namespace

WarningBanner::WarningBanner(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  blink_.setInterval(kBlinkInterval);
  connect(&blink_, &QTimer::timeout, this, [this] {
    lit_ = !lit_;
    update();
  });
}

QRect WarningBanner::TextPlace() const {
  const int side = kBorder + kSignSide + 14;
  return rect().adjusted(side, kBorder + 2, -side, -kBorder - 2);
}

QFont WarningBanner::TextFont() const {
  QFont bold = font();
  bold.setBold(true);
  const QString shown = text().simplified();
  double points = kLargestPoints;
  bold.setPointSizeF(points);
  while (points > kSmallestPoints && !Fits(bold, shown, TextPlace())) {
    points -= kStep;
    bold.setPointSizeF(points);
  }
  return bold;
}

void WarningBanner::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), kGround);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(lit_ ? QColor(Qt::white) : kGround.darker(170), kBorder, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(QRectF(rect()).adjusted(kBorder / 2.0, kBorder / 2.0, -kBorder / 2.0, -kBorder / 2.0));
  const QRectF sign(0, 0, kSignSide, kSignSide);
  const double top = (height() - kSignSide) / 2.0;
  PaintSign(painter, sign.translated(kBorder + 8, top));
  PaintSign(painter, sign.translated(width() - kBorder - 8 - kSignSide, top));
  painter.setPen(Qt::white);
  painter.setFont(TextFont());
  painter.drawText(TextPlace(), kTextFlags, text().simplified());
}

void WarningBanner::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  blink_.start();
}

void WarningBanner::hideEvent(QHideEvent* event) {
  QLabel::hideEvent(event);
  blink_.stop();
  lit_ = true;
}

}  // namespace quixair::desktop
