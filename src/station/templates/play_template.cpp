#include "station/templates/play_template.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"

namespace quixair {
namespace {

constexpr const char* kHint =
    "Select an Existing Template for Playback by Double Clicking or pressing <Enter>...";
constexpr PlayTemplateFamily kPickList = {"PickPlayTemplate", "Pick-List Playback Mode", "*.TPP", "*.TPT"};
constexpr PlayTemplateFamily kSimpleSat = {"SatPlayTemplate", "Simple-Sat Playback Mode", "*.TPL", "*.TPD"};

}  // namespace

PlayTemplate::PlayTemplate(const Platform& platform, const PlayTemplateFamily& family)
    : Screen(platform, family.screen, family.title), family_(family) {
  File1.SetHint("All Custom Templates");
  File2.SetHint("Daily Templates");
  choice_.on_choose = [this](const ChosenTemplate& chosen) { Choose(chosen); };
  Refresh.on_click = [this] { List(); };
  Quit.on_click = [this] { Unload(); };
}

void PlayTemplate::Load() {
  Text1.SetText(kHint);
  List();
  File2.SetFocus();
}

void PlayTemplate::List() {
  ShowTemplates(File1, family_.custom_pattern);
  ShowTemplates(File2, family_.daily_pattern);
  choice_.Reset();
}

void PlayTemplate::Choose(const ChosenTemplate& chosen) {
  Text1.SetText(chosen.name + " selected.  Preparing for Playback...");
  Repaint();
  const Status played = Play(chosen);
  Text1.SetText(kHint);
  if (played.ok()) {
    Unload();
  } else {
    TellFileFault(platform_.dialogs, played, "Playback cannot begin.");
  }
}

PickPlayTemplate::PickPlayTemplate(const Platform& platform) : PlayTemplate(platform, kPickList) {}

Status PickPlayTemplate::Play(const ChosenTemplate& chosen) {
  if (ListIsOnTheAir(platform_.screens)) return {};
  Status written = WriteTextSetting(platform_.files, station_paths::kStorePik, chosen.name);
  if (written.ok()) written = WriteNumberSetting(platform_.files, station_paths::kPikMode, 0);
  if (written.ok()) platform_.screens.Open("PickListForm1");
  return written;
}

SatPlayTemplate::SatPlayTemplate(const Platform& platform) : PlayTemplate(platform, kSimpleSat) {}

/// A custom template chosen by double click or Enter leaves the third value of STORESAT.DTA as it was, at
/// first an empty line: wanted, the programs that read it know it so.
Status SatPlayTemplate::Play(const ChosenTemplate& chosen) {
  Files& files = platform_.files;
  if (chosen.daily || chosen.way == ChosenTemplate::Way::kDone) store_value_ = 0;
  WriteForm store = WriteForm().Text(chosen.name).Text("1");
  if (store_value_) {
    store.Number(*store_value_);
  } else {
    store.Nothing();
  }
  Status written = WriteNumberSetting(files, station_paths::kSatCorrection, 0);
  if (written.ok()) written = files.Write(station_paths::kStoreSat, store.bytes());
  if (written.ok()) written = WriteNumberSetting(files, station_paths::kSatVerify, 1);
  if (written.ok()) platform_.programs.Run("C:\\QXAIR\\BRKCOUNT.EXE");
  return written;
}

}  // namespace quixair
