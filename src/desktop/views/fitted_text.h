#pragma once

// Text as large as its place allows, for what must be read from a distance: the font for it, and the label
// that uses it. Class "FittedLabel" in a form makes one; its font there is the largest it may take.

#include <QFont>
#include <QLabel>

namespace quixair::desktop {

/// `font` in the largest size at which one line of `text` fits; `largest_points` 0 is no bound.
QFont FittedFont(QFont font, const QString& text, QSize place, double largest_points = 0);

/// A one-line label whose text shrinks before it is cut.
class FittedLabel : public QLabel {
 public:
  explicit FittedLabel(QWidget* parent = nullptr) : QLabel(parent) {}
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quixair::desktop
