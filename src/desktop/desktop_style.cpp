#include "desktop/desktop_style.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>
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

/// The square of a check box or the round of an option, filled with the accent when it is set.
void PaintIndicator(QPainter& painter, const QStyleOption& option, bool round) {
  const bool set = option.state.testFlag(QStyle::State_On);
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const QPalette& palette = option.palette;
  const QColor accent = enabled ? palette.color(QPalette::Highlight) : palette.color(QPalette::Mid);
  const QRectF place = QRectF(option.rect).adjusted(1, 1, -1, -1);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(set ? accent : palette.color(QPalette::PlaceholderText), 1.2));
  painter.setBrush(set ? accent : palette.color(QPalette::Base));
  const double corner = round ? place.height() / 2 : 3;
  painter.drawRoundedRect(place, corner, corner);
  if (set && round) {
    painter.setBrush(palette.color(QPalette::HighlightedText));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(place.center(), place.width() / 5, place.width() / 5);
  } else if (set) {
    painter.setPen(
        QPen(palette.color(QPalette::HighlightedText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&place](double x, double y) {
      return QPointF(place.left() + place.width() * x, place.top() + place.height() * y);
    };
    painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.43, 0.73), at(0.78, 0.28)}));
  }
  painter.restore();
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

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
    PaintIndicator(*painter, *option, element == PE_IndicatorRadioButton);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace quixair::desktop
