#include "station/picklist/pick_list_form1.h"

#include "station/picklist/pick_list_playback.h"

namespace quixair {
PickListForm1::PickListForm1(const Platform& platform)
    : Screen(platform, "PickListForm1", "Pick-List Playback Mode [V.4X]"),
      playback_(std::make_unique<PickListPlayback>(*this)) {
  for (Control* control : std::array<Control*, 5>{&Text3, &Text4, &Text5, &EscapeFrame, &EventLbl}) {
    control->Hide();
  }
  Text6.SetText("There is a high number of errors. Press Get Out! to end the run.");
  Command1.SetHint("Covers the notes of the screen");
}

PickListForm1::~PickListForm1() = default;

void PickListForm1::Load() {
  playback_->Activate();
}

void PickListForm1::CloseWindow() {
  playback_->EndRun();
}

OnAirStatus PickListForm1::on_air_status() const {
  const PickListState& state = playback_->context().state;
  return StatusOf(Channels, {.running = state.running,
                             .live_now = state.live_now,
                             .paused = state.AudioPaused == 1,
                             .active_channel = state.ActiveChannel});
}

std::vector<MediaControl*> PickListForm1::sounding_channels() {
  return {&Channels.MMControl1, &Channels.MMControl2};
}

}  // namespace quixair
