#include "desktop/desktop_style.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <functional>

namespace quixair::desktop {
namespace {

constexpr int kWindowSignSide = 16;
constexpr int kBoxSignSide = 48;
const QColor kBlue(0x1d, 0x6f, 0xd6);
const QColor kAmber(0xf5, 0xb8, 0x00);
const QColor kRed(0xc6, 0x28, 0x20);

QIcon Painted(int side, const std::function<void(QPainter&)>& paint) {
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(painter);
  painter.end();
  return QIcon(pixmap);
}

QIcon WindowSign(const std::function<void(QPainter&)>& paint) {
  return Painted(kWindowSignSide, [&paint](QPainter& painter) {
    painter.setPen(QPen(QApplication::palette().color(QPalette::WindowText), 1.4));
    paint(painter);
  });
}

/// A sign on a coloured disc, or on a triangle for a warning.
QIcon BoxSign(const QColor& ground, const QColor& ink, QChar sign, bool triangle) {
  return Painted(kBoxSignSide, [&](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ground, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(ground);
    if (triangle) {
      painter.drawPolygon(QPolygonF({{24, 6}, {44, 42}, {4, 42}}));
    } else {
      painter.drawEllipse(QRectF(5, 5, 38, 38));
    }
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(28);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QRectF(0, triangle ? 7 : 0, kBoxSignSide, kBoxSignSide), Qt::AlignCenter, QString(sign));
  });
}

}  // namespace

DesktopStyle::DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon DesktopStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  switch (picture) {
    case SP_TitleBarMinButton:
      return WindowSign([](QPainter& painter) { painter.drawLine(4, 11, 11, 11); });
    case SP_TitleBarNormalButton:
      return WindowSign([](QPainter& painter) {
        painter.drawRect(4, 6, 6, 6);
        painter.drawPolyline(QPolygon({{6, 6}, {6, 4}, {12, 4}, {12, 10}, {10, 10}}));
      });
    case SP_TitleBarCloseButton:
      return WindowSign([](QPainter& painter) {
        painter.drawLine(4, 4, 11, 11);
        painter.drawLine(4, 11, 11, 4);
      });
    case SP_MessageBoxInformation:
      return BoxSign(kBlue, Qt::white, u'i', false);
    case SP_MessageBoxQuestion:
      return BoxSign(kBlue, Qt::white, u'?', false);
    case SP_MessageBoxWarning:
      return BoxSign(kAmber, Qt::black, u'!', true);
    case SP_MessageBoxCritical:
      return BoxSign(kRed, Qt::white, u'×', false);
    default:
      return QProxyStyle::standardIcon(picture, option, widget);
  }
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace quixair::desktop
