#include "desktop/program_icon.h"

#include <QPainter>
#include <QPixmap>

namespace quixair::desktop {
namespace {

/// A ring with its tail, the tail in the colour of the air.
QPixmap Mark(int side) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 64.0, side / 64.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x0d, 0x12, 0x18));
  painter.drawRoundedRect(QRectF(1, 1, 62, 62), 13, 13);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0xf4, 0xf7, 0xfa), 8));
  painter.drawEllipse(QRectF(14, 13, 34, 34));
  painter.setPen(QPen(QColor(0x2f, 0xc4, 0x6e), 9, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(38, 38), QPointF(51, 52));
  return pixmap;
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) icon.addPixmap(Mark(side));
  return icon;
}

}  // namespace quixair::desktop
