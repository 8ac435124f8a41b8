#pragma once

// The level meters: a stereo pair of bars for each channel that can sound, from -48 dB to full scale, with a
// falling bar, a peak that stays for a moment and a mark of what was cut off. Grey while no output takes the
// sound.

#include <QElapsedTimer>
#include <array>
#include <vector>

#include "desktop/views/air_view.h"
#include "desktop/views/meter_bar.h"

namespace quixair::desktop {

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
  bool heard_ = true;
  QElapsedTimer since_look_;
};

}  // namespace quixair::desktop
