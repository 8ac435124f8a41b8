#include "desktop/views/air_view.h"

#include "station/platform/media.h"
#include "station/screen/screen.h"

namespace quixair::desktop {

AirView::AirView(QWidget* parent, int looks_per_second) : QWidget(parent) {
  timer_.setInterval(1000 / looks_per_second);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] {
    if (followed_ != nullptr && isVisible()) Look(*followed_);
  });
}

void AirView::Follow(Screen& screen) {
  followed_ = dynamic_cast<OnAirScreen*>(&screen);
  if (followed_ == nullptr) return;
  media_ = &screen.platform().media;
  timer_.start();
  Look(*followed_);
}

void AirView::Leave() {
  timer_.stop();
  followed_ = nullptr;
  media_ = nullptr;
}

bool AirView::heard() const {
  return media_ == nullptr || media_->OutputTrouble().empty();
}

}  // namespace quixair::desktop
