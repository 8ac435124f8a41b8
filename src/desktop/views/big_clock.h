#pragma once

// The time of day in large figures with the day under it, from the station's own clock: what the logs and the
// start times go by is what the operator reads.

#include <QTimer>
#include <QWidget>

#include "desktop/views/screen_view.h"

namespace quixair {
class Clock;
}

namespace quixair::desktop {

class BigClock : public QWidget, public ScreenView {
 public:
  explicit BigClock(QWidget* parent = nullptr);
  void Follow(Screen& screen) override;
  void Leave() override;
  QSize sizeHint() const override { return {250, 56}; }
  QSize minimumSizeHint() const override { return {190, 44}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Look();

  const Clock* clock_ = nullptr;
  QString time_;
  QString day_;
  QTimer timer_;
};

}  // namespace quixair::desktop
