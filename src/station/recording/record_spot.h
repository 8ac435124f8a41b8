#pragma once

// RecordSpot, the entry of spots: how long the capture may take is preset.

#include <string>

#include "station/recording/entry_screen.h"

namespace quixair {

class RecordSpot : public EntryScreen {
 public:
  explicit RecordSpot(const Platform& platform);

  Frame Frame1{*this, "Frame1", "Length:"};
  OptionButton Option1{Frame1, "Option1", "30"};
  OptionButton Option2{Frame1, "Option2", "60"};
  OptionButton Option3{Frame1, "Option3", "90"};
  TextBox Text6{Frame1, "Text6"};
  Label Label10{Frame1, "Label10", "Sec."};
  CheckBox Check1{Frame1, "Check1", "UserStop"};

 protected:
  void NewRecordingBegins() override;
  void PresetRead(const std::string& seconds) override;
  void EnableExtras(bool enabled) override;
  std::string Preset() const override { return preset_; }

 private:
  void PresetTyped();

  std::string preset_;  // "30", "60", "90", what was typed, or empty: the operator stops the capture
};

}  // namespace quixair
