#include "desktop/views/fitted_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace quixair::desktop {
namespace {
constexpr double kSmallestPoints = 7;
constexpr double kLargestPoints = 200;
constexpr double kStep = 0.25;
constexpr int kWidestHint = 250;   // beyond it the layout decides, and the text shrinks
constexpr int kTrialHeight = 100;  // points, large enough for hinting not to matter
}  // namespace

QFont FittedFont(QFont font, const QString& text, QSize place, double largest_points) {
  font.setPointSizeF(kTrialHeight);
  const QFontMetricsF trial(font);
  const double by_width = place.width() / std::max(1.0, trial.horizontalAdvance(text));
  const double by_height = place.height() / std::max(1.0, trial.height());
  const double largest = largest_points > 0 ? largest_points : kLargestPoints;
  double points = std::clamp(kTrialHeight * std::min(by_width, by_height), kSmallestPoints, largest);
  font.setPointSizeF(points);
  // Letters of small sizes are wider than their share of large ones.
  while (points > kSmallestPoints && QFontMetricsF(font).horizontalAdvance(text) > place.width()) {
    points -= kStep;
    font.setPointSizeF(points);
  }
  return font;
}

QSize FittedLabel::sizeHint() const {
  return {std::min(fontMetrics().horizontalAdvance(text()), kWidestHint), fontMetrics().height()};
}

QSize FittedLabel::minimumSizeHint() const {
  return {text().isEmpty() ? 0 : 40, fontMetrics().height() / 2};
}

void FittedLabel::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QRect place = contentsRect();
  const QString shown = text().trimmed();
  painter.setFont(FittedFont(font(), shown, place.size(), font().pointSizeF()));
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  const QString fitted = painter.fontMetrics().elidedText(shown, Qt::ElideRight, place.width());
  painter.drawText(place, static_cast<int>(alignment()) | Qt::TextSingleLine, fitted);
}

}  // namespace quixair::desktop
