#include "station/onair/playback_screen.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/programs.h"

namespace quixair {

PlaybackScreen::PlaybackScreen(const Platform& platform, const Names& names)
    : Screen(platform, names.name, names.title),
      Overlap(*this, names.overlap_label, names.overlap_save),
      Switches(*this, names.verification_file),
      Label2(*this, "Label2", names.no_start_time),
      StartTime(*this, Label2, Timer1, names.no_start_time) {
  Text3.Hide();
  OLE1.on_click = [this] { platform_.programs.Run(std::string(station_paths::kMixer)); };
}

void PlaybackScreen::CloseWindow() {
  const bool ends = !OnTheAir() || platform_.dialogs.MessageBox("Playback is on the air. End the run?",
                                                                box_style::kYesNo + box_style::kQuestion,
                                                                "Quixair") == Answer::kYes;
  if (ends) EndRunOnTheAir();
}

std::vector<MediaControl*> PlaybackScreen::sounding_channels() {
  return {&Channels.MMControl1, &Channels.MMControl2};
}

}  // namespace quixair
