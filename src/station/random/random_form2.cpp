#include "station/random/random_form2.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/onair/start_time_frame.h"
#include "station/platform/dialogs.h"

namespace quixair {
RandomForm2::RandomForm2(const Platform& platform) : Screen(platform, "RandomForm2", "Set Start Time") {
  for (ListBox* list : {&List1, &List2, &List3}) list->on_click = [this] { Choose(); };
  Command1.on_click = [this] { Done(); };
}

void RandomForm2::Load() {
  FillStartTimeLists(List1, List2, List3);
}

void RandomForm2::Choose() {
  Label2.SetCaption("Selected = " + ChosenStartTime(List1, List2, List3));
}

void RandomForm2::Done() {
  const std::string start_time = ChosenStartTime(List1, List2, List3);
  if (start_time.size() != kStartTimeLength) {
    platform_.dialogs.MessageBox(kStartTimeIncomplete, box_style::kOk, "Quixair");
    return;
  }
  SkipAndGoOn(WriteTextSetting(platform_.files, station_paths::kStartTime, start_time));
  Hide();
  platform_.screens.Open("RandomForm1");
}

}  // namespace quixair
