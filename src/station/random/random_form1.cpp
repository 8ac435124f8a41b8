#include "station/random/random_form1.h"

#include "station/console/settings_files.h"
#include "station/random/random_playback.h"

namespace quixair {
namespace {
constexpr int kMaxErrorRows = 500;  // a run lasts for weeks; the error log file keeps them all
}

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

void RandomForm1::AddErrorRow(std::string row) {
  List6.AddRow(std::move(row));
  if (List6.row_count() > kMaxErrorRows) List6.RemoveRow(1);  // below the heading
}

OnAirStatus RandomForm1::on_air_status() const {
  const RunState& run = playback_->context().run;
  const MediaControl& second = Channels.MMControl2;
  const bool on_second = run.ActiveChannel == 2 || Channels.MMControl1.Mode() == ChannelMode::kNotOpen;
  const MediaControl& active =
      on_second && second.Mode() != ChannelMode::kNotOpen ? second : Channels.MMControl1;
  OnAirStatus status;
  status.stop_set = run.StopSetActive == 1;
  status.length_seconds = active.Length() / 1000.0;
  status.elapsed_seconds = active.Position() / 1000.0;
  if (!run.running) return status;
  if (run.live_now) {
    status.state = AirState::kLive;
  } else if (run.AudioPaused == 1) {
    status.state = AirState::kPaused;
  } else {
    status.state = active.Mode() == ChannelMode::kPlaying ? AirState::kPlaying : AirState::kSilent;
  }
  return status;
}

std::optional<StopSetStatus> RandomForm1::stop_set_status() const {
  return playback_->scheduler().status();
}

std::vector<MediaControl*> RandomForm1::sounding_channels() {
  return {&Channels.MMControl1, &Channels.MMControl2};
}

}  // namespace quixair
