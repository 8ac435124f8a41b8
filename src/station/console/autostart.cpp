#include "station/console/autostart.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/session_start.h"

namespace quixair {

Autostart::Autostart(const Platform& platform) : Screen(platform, "Autostart", "Automatic Restart Status") {
  Command1.on_click = [this] { Done(); };
}

void Autostart::Load() {
  const std::string kept = ReadSetting(platform_.files, station_paths::kResetOn).value_or(std::string());
  if (kept != "1" && kept != "0") return;
  OptionButton& option = kept == "1" ? Option1 : Option2;
  option.Select();
  option.SetFocus();
}

void Autostart::Done() {
  if (Option1.selected() || Option2.selected()) Keep(Option1.selected());
  Unload();
}

void Autostart::Keep(bool enabled) {
  const Status kept = WriteTextSetting(platform_.files, station_paths::kResetOn, enabled ? "1" : "0");
  if (!kept.ok()) {
    TellFileFault(platform_.dialogs, kept, "The automatic restart stays as it was.");
    return;
  }
  // Also when the switch stood so before: the program may have moved, or the station come from another PC.
  const Status set = platform_.session_start.SetStartsWithSession(enabled);
  if (set.ok()) return;
  TellFileFault(platform_.dialogs, set,
                enabled ? "The automatic restart is enabled, but the program will not start by itself "
                          "with the desktop session."
                        : "The automatic restart is disabled, but the program will still start "
                          "with the desktop session.");
}

}  // namespace quixair
