#include "station/console/custom_information.h"

#include "station/console/console_title.h"
#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"

namespace quixair {

CustomInformation::CustomInformation(const Platform& platform)
    : Screen(platform, "CustomInformation", "Custom Information") {
  Text1.on_change = [this] { DropWhatTheFileCannotHold(); };
  Command1.on_click = [this] { Done(); };
  Command2.on_click = [this] { Unload(); };
}

void CustomInformation::Load() {
  Text1.SetText(ReadSetting(platform_.files, station_paths::kCustom).value_or(std::string()));
}

// Nothing in the file is escaped, so a double quote would end the text there. It goes as soon as it comes,
// typed or pasted, and so do the line ends of what is pasted.
void CustomInformation::DropWhatTheFileCannotHold() {
  std::string text = Text1.text();
  std::erase_if(text, [](char letter) { return letter == '"' || letter == '\r' || letter == '\n'; });
  Text1.SetText(std::move(text));
}

void CustomInformation::Done() {
  const Status written = WriteTextSetting(platform_.files, station_paths::kCustom, Text1.text());
  if (!written.ok()) {
    TellFileFault(platform_.dialogs, written, "The title stays as it was.");
  } else if (Screen* console = platform_.screens.Find("Console")) {
    console->SetTitle(ConsoleTitle(Text1.text()));
  }
  Unload();
}

}  // namespace quixair
