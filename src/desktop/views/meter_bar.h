#pragma once

// One bar of a level meter and its scale, as all meters of the program draw them: from -48 dB to full scale,
// with a falling bar and a peak that stays for a moment.

#include <QColor>
#include <QRectF>

class QPainter;

namespace quixair::desktop {

/// One bar: rises at once, falls 24 dB a second.
class MeterBar {
 public:
  void Feed(float peak, double seconds);
  double decibels() const { return decibels_; }
  double held() const { return held_; }
  bool at_rest() const;
  static constexpr double kFloor = -48;

 private:
  double decibels_ = kFloor;
  double held_ = kFloor;
  double held_for_ = 0;
};

inline constexpr int kMeterScaleHeight = 12;
inline const QColor kMeterBack(0x14, 0x19, 0x20);
inline const QColor kMeterScale(0x8b, 0x99, 0xa9);

/// Grey when it is not `heard`.
void PaintMeterBar(QPainter& painter, const QRectF& bar, const MeterBar& meter, bool heard = true);
/// The numbers of the marks, below the bars.
void PaintMeterScale(QPainter& painter, const QRectF& place);

}  // namespace quixair::desktop
