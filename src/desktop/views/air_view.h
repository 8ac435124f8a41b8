#pragma once

// The common part of the views that look at a playback screen many times a second: the timer, the way from
// the screen to its OnAirScreen, and whether what it plays can be heard. On a screen that is none of these, or
// in a form designer, such a view stays as it is.

#include <QTimer>
#include <QWidget>

#include "desktop/views/screen_view.h"
#include "station/onair/on_air_status.h"

namespace quixair {
class Media;
}

namespace quixair::desktop {

class AirView : public QWidget, public ScreenView {
 public:
  void Follow(Screen& screen) override;
  void Leave() override;

 protected:
  AirView(QWidget* parent, int looks_per_second);
  /// Reads the screen; repaints only what has changed.
  virtual void Look(OnAirScreen& screen) = 0;
  /// Whether an output takes what is played.
  bool heard() const;

 private:
  OnAirScreen* followed_ = nullptr;
  const Media* media_ = nullptr;
  QTimer timer_;
};

}  // namespace quixair::desktop
