#include "station/random/random_form1.h"

#include "station/console/settings_files.h"
#include "station/random/random_playback.h"

namespace quixair {
RandomForm1::RandomForm1(const Platform& platform)
    : Screen(platform, "RandomForm1", "Random Playback Mode  [4X]"),
      playback_(std::make_unique<RandomPlayback>(*this)) {
  for (Control* control : std::array<Control*, 5>{&Text3, &Text4, &Text7, &Label9, &Frame2}) control->Hide();
  Command4.Disable();
  Command3.on_click = [this] {
    const bool show = !List4.visible();
    List4.Show(show);
    Command5.Show(show);
    Command3.SetCaption(show ? "Hide Setti&ngs" : "Show Setti&ngs");
  };
  Command1.on_click = [this] {
    const bool show = !Text4.visible();
    Text4.Show(show);
    Command5.Show(!show && List4.visible());
    Command1.SetCaption(show ? "Hide" : "Text Editor");
  };
}

RandomForm1::~RandomForm1() = default;

void RandomForm1::Load() {
  playback_->Load();
}

void RandomForm1::CloseWindow() {
  playback_->Leave();
}

OnAirStatus RandomForm1::on_air_status() const {
  const RunState& run = playback_->context().run;
  OnAirStatus status = StatusOf(Channels, {.running = run.running,
                                           .live_now = run.live_now,
                                           .paused = run.AudioPaused == 1,
                                           .active_channel = run.ActiveChannel});
  status.stop_set = run.StopSetActive == 1;
  return status;
}

std::optional<StopSetStatus> RandomForm1::stop_set_status() const {
  return playback_->scheduler().status();
}

std::vector<MediaControl*> RandomForm1::sounding_channels() {
  return {&Channels.MMControl1, &Channels.MMControl2};
}

}  // namespace quixair
