#pragma once

// How far the item on the air is: time remaining in large figures, time elapsed and whole length beside it,
// and a bar. The bar turns amber for the last seconds, so that an announcer sees the end come.

#include "desktop/views/air_view.h"

namespace quixair::desktop {

class ItemProgress : public AirView {
 public:
  explicit ItemProgress(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {420, 74}; }
  QSize minimumSizeHint() const override { return {260, 58}; }

 protected:
  void Look(OnAirScreen& screen) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  OnAirStatus status_;
};

/// "m:ss", or "h:mm:ss" from an hour on.
QString MinutesAndSeconds(double seconds);

}  // namespace quixair::desktop
