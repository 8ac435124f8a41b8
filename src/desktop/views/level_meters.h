#pragma once

// The level meters: a stereo pair of bars for each channel that can sound, from -48 dB to full scale, with a
// falling bar, a peak that stays for a moment and a mark of what was cut off.

#include <QElapsedTimer>
#include <array>
#include <vector>

#include "desktop/views/air_view.h"

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

class LevelMeters : public AirView {
 public:
  explicit LevelMeters(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {240, 84}; }
  QSize minimumSizeHint() const override { return {160, 64}; }

 protected:
  void Look(OnAirScreen& screen) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  using Pair = std::array<MeterBar, 2>;
  std::vector<Pair> channels_{2};
  QElapsedTimer since_look_;
};

}  // namespace quixair::desktop
