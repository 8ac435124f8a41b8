#include "station/picklist/pick_list_form1.h"

#include <array>

#include "station/console/station_paths.h"
#include "station/picklist/pick_list_playback.h"
#include "station/platform/dialogs.h"

namespace quixair {
PickListForm1::PickListForm1(const Platform& platform)
    : PlaybackScreen(platform, {.name = "PickListForm1",
                                .title = "Pick-List Playback Mode [V.4X]",
                                .overlap_label = "Label5",
                                .overlap_save = "Command3",
                                .verification_file = station_paths::kPickVerify,
                                .no_start_time = "Start Time = (MANUAL)"}),
      playback_(std::make_unique<PickListPlayback>(*this)) {
  for (Control* control :
       std::array<Control*, 7>{&Text2, &List3, &Command1, &Text4, &Text5, &EscapeFrame, &EventLbl}) {
    control->Hide();
  }
  Text6.SetText("There is a high number of errors. Press Get Out! to end the run.");
  Command1.SetHint("Covers the notes of the screen");
}

PickListForm1::~PickListForm1() = default;

void PickListForm1::Load() {
  playback_->Activate();
}

void PickListForm1::PrepareAgain(const ScreenOpening&) {
  if (!OnTheAir()) return playback_->LoadAnew();
  platform_.dialogs.MessageBox("A list is on the air, and goes on.\nEnd its run before you play another one.",
                               box_style::kOk + box_style::kExclamation, "Pick-List Playback");
}

bool PickListForm1::OnTheAir() const {
  return playback_->running();
}

void PickListForm1::EndRunOnTheAir() {
  playback_->EndRun();
}

void PickListForm1::ProgramEnds() {
  playback_->ProgramEnds();
}

OnAirStatus PickListForm1::on_air_status() const {
  return playback_->status();
}

}  // namespace quixair
