#include "desktop/report_paper.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>

#include "desktop/station_text.h"

namespace quixair::desktop {
namespace {

constexpr double kPoints = 10;
constexpr double kMeasured = 100;  // points, at which a letter is measured

bool HasFixedPitch(const QFont& font) {
  const QFontMetricsF metrics(font);
  return metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W');
}

/// A letter of the font at 1 point: pixels count as points here.
QSizeF LetterOf(QFont font) {
  font.setPixelSize(static_cast<int>(kMeasured));
  const QFontMetricsF metrics(font);
  return QSizeF(metrics.horizontalAdvance(u'0'), metrics.height()) / kMeasured;
}

}  // namespace

QFont ReportFont() {
  QFont font(QStringLiteral("DejaVu Sans Mono"));
  font.setStyleHint(QFont::TypeWriter);
  font.setHintingPreference(QFont::PreferNoHinting);
  if (!QFontInfo(font).exactMatch() || !HasFixedPitch(font)) {
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
  }
  return font;
}

ReportExtent ExtentOf(const std::vector<PrintedPage>& pages) {
  ReportExtent extent;
  for (const PrintedPage& page : pages) {
    extent.lines = std::max(extent.lines, static_cast<int>(page.size()));
    for (const std::string& line : page) {
      extent.columns = std::max(extent.columns, static_cast<int>(line.size()));
    }
  }
  return extent;
}

void PaintReportPage(QPainter& painter, const QRectF& area, const PrintedPage& page,
                     const ReportExtent& extent) {
  QFont font = ReportFont();
  const QSizeF letter = LetterOf(font);
  const double size = std::min({kPoints, area.width() / (extent.columns * letter.width()),
                                area.height() / (extent.lines * letter.height())});
  font.setPixelSize(static_cast<int>(kMeasured));
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(size / kMeasured, size / kMeasured);
  painter.setFont(font);
  painter.setPen(Qt::black);
  const QFontMetricsF metrics(font);
  double baseline = metrics.ascent();
  for (const std::string& line : page) {
    painter.drawText(QPointF(0, baseline), ToQt(line));
    baseline += metrics.height();
  }
  painter.restore();
}

}  // namespace quixair::desktop
