#include "station/onair/overlap_choice.h"

#include <utility>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {
constexpr const char* kCaption = "Start Overlap when ? seconds remain";
}

OverlapChoice::OverlapChoice(Screen& owner, std::string label_name, std::string save_name)
    : caption(owner, std::move(label_name), kCaption),
      List2(owner, "List2"),
      save(owner, std::move(save_name), "Sa&ve") {
  save.SetHint("Saves the Overlap Setting");
  save.Hide();
  List2.on_click = [this] {
    save.Show();
    save.Enable();
  };
  save.on_click = [this] {
    SkipAndGoOn(
        WriteTextSetting(List2.screen().platform().files, station_paths::kOverlap, List2.selected_text()));
    save.Disable();
  };
}

void OverlapChoice::ReadFile() {
  List2.Clear();
  for (int seconds = 0; seconds <= 9; ++seconds) List2.AddRow(std::to_string(seconds));
  const std::string stored =
      ReadSetting(List2.screen().platform().files, station_paths::kOverlap).value_or(std::string());
  const bool valid = stored.size() == 1 && stored[0] >= '0' && stored[0] <= '9';
  List2.Select(valid ? stored[0] - '0' : 0);
}

void OverlapChoice::Allow(bool allowed) {
  if (allowed == allowed_) return;
  allowed_ = allowed;
  if (!allowed) chosen_ = List2.selected_index();
  List2.Select(allowed ? chosen_ : 0);
  if (!allowed) List2.Disable();
  if (!allowed) save.Hide();
  caption.SetCaption(allowed ? kCaption : "[Can't Overlap]");
}

int OverlapChoice::Settled() {
  if (List2.selected_index() < 0) List2.Select(0);
  return seconds();
}

int OverlapChoice::seconds() const {
  return WholeValue(List2.selected_text());
}

}  // namespace quixair
