#include "station/picklist/pick_list_form2.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/onair/start_time_frame.h"
#include "station/platform/dialogs.h"

namespace quixair {

PickListForm2::PickListForm2(const Platform& platform) : Screen(platform, "PickListForm2", "Set Start Time") {
  for (ListBox* list : {&List1, &List2, &List3}) list->on_click = [this] { Choose(); };
  Command1.on_click = [this] { Done(); };
  Command2.on_click = [this] {
    StartTimeText.clear();
    OpenPlayback();
  };
}

void PickListForm2::Load() {
  FillStartTimeLists(List1, List2, List3);
}

void PickListForm2::Choose() {
  StartTimeText = ChosenStartTime(List1, List2, List3);
  Label2.SetCaption("Selected = " + StartTimeText);
}

void PickListForm2::Done() {
  if (StartTimeText.size() != kStartTimeLength) {
    platform_.dialogs.MessageBox(kStartTimeIncomplete, box_style::kOk, "Quixair");
    return;
  }
  SkipAndGoOn(WriteTextSetting(platform_.files, station_paths::kStartTime, StartTimeText));
  OpenPlayback();
}

void PickListForm2::OpenPlayback() {
  Unload();
  platform_.screens.Open("PickListForm1");
}

}  // namespace quixair
