#include "station/onair/playback_screen.h"

namespace quixair {

PlaybackScreen::PlaybackScreen(const Platform& platform, const Names& names)
    : Screen(platform, names.name, names.title),
      Overlap(*this, names.overlap_label, names.overlap_save),
      Switches(*this, names.verification_file),
      Label2(*this, "Label2", names.no_start_time),
      StartTime(*this, Label2, Timer1, names.no_start_time) {
  Text3.Hide();
}

std::vector<MediaControl*> PlaybackScreen::sounding_channels() {
  return {&Channels.MMControl1, &Channels.MMControl2};
}

}  // namespace quixair
