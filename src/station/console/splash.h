#pragma once

// frmSplash, the picture shown while the program starts; a key or a click takes it away.

#include "station/screen/screen.h"

namespace quixair {

class Splash : public Screen {
 public:
  explicit Splash(const Platform& platform);

  Frame Frame1{*this, "Frame1"};
  Label lblProductName{Frame1, "lblProductName", "Quixair"};
  Label lblVersion{Frame1, "lblVersion"};
};

}  // namespace quixair
