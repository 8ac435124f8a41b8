#include "station/onair/playback_switches.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/screen/screen.h"

namespace quixair {

PlaybackSwitches::PlaybackSwitches(Screen& owner, std::string_view verification_file)
    : Check2(owner, "Check2", "Verification Log: "),
      Check3(owner, "Check3", " 'Begin Next' Pause"),
      Check4(owner, "Check4", "Spot Date Check:"),
      verification_file_(verification_file) {
  Check2.on_click = [this] {
    SkipAndGoOn(WriteNumberSetting(files(), verification_file_, Check2.ticked() ? 0 : 1));
    ShowVerification();
  };
  Check3.on_click = [this] {
    SkipAndGoOn(WriteNumberSetting(files(), station_paths::kPauseAfterNext, Check3.ticked() ? 1 : 0));
  };
  Check4.on_click = [this] {
    SkipAndGoOn(WriteTextSetting(files(), station_paths::kSpotDateCheck, Check4.ticked() ? "1" : "0"));
    Check4.SetCaption(SpotDateCaption(Check4.ticked() ? SpotDateSwitch::kOn : SpotDateSwitch::kOff));
  };
}

Files& PlaybackSwitches::files() const {
  return Check2.screen().platform().files;
}

void PlaybackSwitches::ReadFiles() {
  const SpotDateSwitch date_check = ReadSpotDateSwitch(files());
  if (date_check != SpotDateSwitch::kUnknown) Check4.Tick(date_check == SpotDateSwitch::kOn);
  Check4.SetCaption(SpotDateCaption(date_check));
  Check2.Tick(ReadNumberSetting(files(), verification_file_) != 1);
  ShowVerification();
  Check3.Tick(ReadNumberSetting(files(), station_paths::kPauseAfterNext) == 1);
}

void PlaybackSwitches::ShowVerification() {
  Check2.SetCaption(Check2.ticked() ? "Verification Log: ON" : "Verification Log: OFF");
}

}  // namespace quixair
