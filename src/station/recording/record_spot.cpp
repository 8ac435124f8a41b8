#include "station/recording/record_spot.h"

namespace quixair {

RecordSpot::RecordSpot(const Platform& platform) : EntryScreen(platform, EntryKindOf(RecordingKind::kSpot)) {
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    option->on_click = [this, option] { PresetRead(option->caption()); };
  }
  Check1.on_click = [this] { PresetRead({}); };
  Text6.on_change = [this] {
    if (!LooksLikeDigits(Text6.text())) Text6.SetText({});
    PresetTyped();
  };
}

void RecordSpot::NewRecordingBegins() {
  EnableExtras(true);
  PresetRead({});
}

void RecordSpot::PresetRead(const std::string& seconds) {
  preset_ = seconds;
  bool option_chosen = false;
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    option->Select(option->caption() == seconds);
    option_chosen = option_chosen || option->selected();
  }
  Check1.Tick(seconds.empty());
  Text6.SetText(option_chosen ? std::string() : seconds);
}

void RecordSpot::PresetTyped() {
  const bool option_chosen = Option1.selected() || Option2.selected() || Option3.selected();
  if (Text6.text().empty() && option_chosen) return;  // what was refused leaves the option
  preset_ = Text6.text();
  for (OptionButton* option : {&Option1, &Option2, &Option3}) option->Select(false);
  Check1.Tick(preset_.empty());
}

void RecordSpot::EnableExtras(bool enabled) {
  Frame1.Enable(enabled);
}

}  // namespace quixair
