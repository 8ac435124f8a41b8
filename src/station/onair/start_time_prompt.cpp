#include "station/onair/start_time_prompt.h"

#include <utility>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/onair/start_time_frame.h"
#include "station/platform/dialogs.h"

namespace quixair {

StartTimePrompt::StartTimePrompt(const Platform& platform, std::string name, std::string playback_screen)
    : Screen(platform, std::move(name), "Set Start Time"), playback_screen_(std::move(playback_screen)) {
  for (ListBox* list : {&List1, &List2, &List3}) list->on_click = [this] { Choose(); };
  Command1.on_click = [this] { Done(); };
}

void StartTimePrompt::Load() {
  FillStartTimeLists(List1, List2, List3);
}

void StartTimePrompt::Choose() {
  Label2.SetCaption("Selected = " + ChosenStartTime(List1, List2, List3));
}

void StartTimePrompt::Done() {
  const std::string start_time = ChosenStartTime(List1, List2, List3);
  if (start_time.size() != kStartTimeLength) {
    platform_.dialogs.MessageBox(kStartTimeIncomplete, box_style::kOk, "Quixair");
    return;
  }
  SkipAndGoOn(WriteTextSetting(platform_.files, station_paths::kStartTime, start_time));
  ShowPlayback();
}

void StartTimePrompt::ShowPlayback() {
  Hide();
  platform_.screens.Open(playback_screen_);
}

PickListForm2::PickListForm2(const Platform& platform)
    : StartTimePrompt(platform, "PickListForm2", "PickListForm1") {
  Command2.on_click = [this] { ShowPlayback(); };
}

}  // namespace quixair
