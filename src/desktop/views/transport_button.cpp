#include "desktop/views/transport_button.h"

#include <QPainter>

namespace quixair::desktop {
namespace {
constexpr double kSignSide = 9;
}

TransportButton::TransportButton(Sign sign, const QString& hint, QWidget* parent)
    : QToolButton(parent), sign_(sign) {
  setAutoRaise(true);
  setToolTip(hint);
  setAccessibleName(hint);
  setFocusPolicy(Qt::TabFocus);
}

void TransportButton::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(rect()).center());
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::ButtonText));
  const double half = kSignSide / 2;
  if (sign_ == Sign::kPlay) {
    painter.drawPolygon(QPolygonF({{-half + 1, -half}, {-half + 1, half}, {half + 1, 0}}));
  } else {
    painter.drawRect(QRectF(-half, -half, kSignSide / 3, kSignSide));
    painter.drawRect(QRectF(half - kSignSide / 3, -half, kSignSide / 3, kSignSide));
  }
}

}  // namespace quixair::desktop
