#pragma once

// A report's pages on paper: the font that fits, and a page painted. Preview, printers and PDF files all
// paint through here, so that what is seen is what is printed.

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <vector>

#include "station/platform/printer.h"

namespace quixair::desktop {

/// The fixed-pitch font of printed lists, of any size.
QFont ReportFont();

/// What all pages of a report must have room for.
struct ReportExtent {
  int columns = kPageColumns;
  int lines = kPageLines;
};
ReportExtent ExtentOf(const std::vector<PrintedPage>& pages);

/// Paints the page inside `area`, which is measured in points however the painter is scaled. The letters are
/// as large as the old printer's, 10 points, or as much smaller as the extent needs.
void PaintReportPage(QPainter& painter, const QRectF& area, const PrintedPage& page,
                     const ReportExtent& extent);

}  // namespace quixair::desktop
