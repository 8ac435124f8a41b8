#include "station/random/random_form1.h"

#include <array>

#include "station/console/station_paths.h"
#include "station/random/random_playback.h"

namespace quixair {
RandomForm1::RandomForm1(const Platform& platform)
    : PlaybackScreen(platform, {.name = "RandomForm1",
                                .title = "Random Playback Mode  [4X]",
                                .overlap_label = "Label4",
                                .overlap_save = "Command6",
                                .verification_file = station_paths::kRandomVerify,
                                .no_start_time = ""}),
      playback_(std::make_unique<RandomPlayback>(*this)) {
  for (Control* control : std::array<Control*, 4>{&Text4, &Text7, &Label9, &Frame2}) control->Hide();
  Command4.Disable();
  Text4.SetText("Random Settings");
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

bool RandomForm1::OnTheAir() const {
  return playback_->running();
}

void RandomForm1::EndRunOnTheAir() {
  playback_->Leave();
}

void RandomForm1::ProgramEnds() {
  playback_->ProgramEnds();
}

OnAirStatus RandomForm1::on_air_status() const {
  return playback_->status();
}

std::optional<StopSetStatus> RandomForm1::stop_set_status() const {
  return playback_->scheduler().status();
}

}  // namespace quixair
