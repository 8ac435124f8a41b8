#pragma once

// The toolkit's plain style with pictures of our own where its own are dark on any ground or of another age:
// the signs of child windows and those of the boxes.

#include <QProxyStyle>

namespace quixair::desktop {

class DesktopStyle : public QProxyStyle {
 public:
  DesktopStyle();
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

}  // namespace quixair::desktop
