#pragma once

// The state of the air as one word on a coloured plate, to be told from across the room. An unwanted silence
// flashes.

#include <QElapsedTimer>

#include "desktop/views/air_view.h"

namespace quixair::desktop {

class StateLamp : public AirView {
 public:
  explicit StateLamp(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {210, 56}; }
  QSize minimumSizeHint() const override { return {150, 44}; }
  /// The word on the plate.
  QString word() const;

 protected:
  void Look(OnAirScreen& screen) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  AirState state_ = AirState::kReady;
  bool stop_set_ = false;
  bool flash_ = false;
  QElapsedTimer since_start_;
};

}  // namespace quixair::desktop
