#pragma once

// The state of the air as one word on a coloured plate, to be told from across the room. An unwanted silence
// flashes. While no output takes the sound that is the word, whatever the state, and nothing is "ON AIR".

#include <QElapsedTimer>

#include "desktop/views/air_view.h"

namespace quixair::desktop {

class StateLamp : public AirView {
 public:
  explicit StateLamp(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {210, 56}; }
  QSize minimumSizeHint() const override { return {150, 44}; }
  /// The word on the plate, and what stands below it in small, if anything.
  QString word() const;
  QString second_line() const;

 protected:
  void Look(OnAirScreen& screen) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  AirState state_ = AirState::kReady;
  bool stop_set_ = false;
  bool heard_ = true;
  bool flash_ = false;
  QElapsedTimer since_start_;
};

}  // namespace quixair::desktop
