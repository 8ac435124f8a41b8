#pragma once

// Autostart, the switch for coming back after a power cut: whether the console takes up a broken-off run, and
// with it whether the program starts with the desktop session.

#include "station/platform/run_time_error.h"
#include "station/screen/screen.h"

namespace quixair {

class Autostart : public Screen {
 public:
  explicit Autostart(const Platform& platform);
  void Load() override;

  Frame Frame1{*this, "Frame1"};
  OptionButton Option1{Frame1, "Option1", "Enabled"};
  OptionButton Option2{Frame1, "Option2", "Disabled"};
  Button Command1{*this, "Command1", "&Done"};

 private:
  void Done();
  void Keep(bool enabled);
};

}  // namespace quixair
