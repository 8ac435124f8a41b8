#pragma once

// The level meters of a capture screen: two broad bars by which an operator sets the level, before a capture
// as well as during it. A side that reached full scale is marked for some seconds: what was cut off there
// cannot be mended later.

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <array>

#include "desktop/views/meter_bar.h"
#include "desktop/views/screen_view.h"

namespace quixair {
class WaveRecorder;
}

namespace quixair::desktop {

class CaptureMeters : public QWidget, public ScreenView {
 public:
  explicit CaptureMeters(QWidget* parent = nullptr);
  void Follow(Screen& screen) override;
  void Leave() override;
  QSize sizeHint() const override { return {420, 140}; }
  QSize minimumSizeHint() const override { return {240, 100}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Side {
    MeterBar bar;
    double clipped_for = 0;  // seconds that the mark stays
  };
  void Look();
  void PaintSide(QPainter& painter, const QRectF& place, const Side& side, const QString& name) const;

  WaveRecorder* recorder_ = nullptr;
  std::array<Side, 2> sides_;
  QElapsedTimer since_look_;
  QTimer timer_;
};

}  // namespace quixair::desktop
