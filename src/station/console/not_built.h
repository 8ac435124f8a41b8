#pragma once

// NotBuilt, the plain child that stands in for a screen which this version does not have.

#include "station/platform/screen.h"

namespace quixair {

class NotBuilt : public Screen {
 public:
  explicit NotBuilt(const Platform& platform);
  /// The opening's title is the name of the screen that was asked for.
  void Prepare(const ScreenOpening& opening) override;

  Label Label1{*this, "Label1"};
  Button Command1{*this, "Command1", "&OK"};
};

}  // namespace quixair
