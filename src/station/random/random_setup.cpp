#include "station/random/random_setup.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr const char* kBreakTypes[] = {"None", "Internal Random", "Scheduled Stop-Set"};

void FillNumbers(ListBox& list, int first, int last) {
  list.Clear();
  for (int number = first; number <= last; ++number) list.AddRow(std::to_string(number));
}

void FillNoYes(ListBox& list) {
  list.Clear();
  list.AddRow("No");
  list.AddRow("Yes");
}

}  // namespace

RandomSetup::RandomSetup(const Platform& platform)
    : Screen(platform, "RandomSetup", "Random Playback Setup") {
  SetHints();
  ConnectLists();
  Command1.on_click = [this] { Save(); };
  Command2.on_click = [this] { Load(); };
  Command3.on_click = [this] { Unload(); };
}

void RandomSetup::SetHints() {
  List1.SetHint("Select the number of songs to play between each Stinger (Short Liner).");
  List2.SetHint("Select number songs to play between eachliner (material starting with 'L').");
  List3.SetHint(
      "Select number of songs that will play between each Internal commercial break (break that gets "
      "material from "
      "the spot-rotation list)");
  List4.SetHint(
      "Enter the greatest number of spots that can play in an internal break.  Note:  Fewer spots may "
      "actually play "
      "depending on a number of factors.");
  List5.SetHint(
      "NONE = no break playback; INTERNAL = Breaks play from spot rotation list;  SCHEDULED LIST = Spots "
      "play on timed "
      "basis from daily 'Satellite' templates");
  List6.SetHint(
      "Select YES to play a liner before each INTERNAL commercial break.  Select NO to go directly from song "
      "into "
      "commercial.");
  List7.SetHint(
      "Select YES to play a lienr at the end of each INTERNAL commercial break.  Select NO to exit break "
      "directly into "
      "a song.");
  List8.SetHint(
      "Selecting YES will cause no liners to play on a random basis.  Select NO to ENABLE liner playback.");
  List9.SetHint(
      "Selecting YES will cause no stinger (short) liners  to play on a random basis.  Select NO to ENABLE "
      "stinger "
      "playback.");
  List10.SetHint("# of Seconds to Cancel a Pause in A Stop-Set and Resume Random Playback");
  const auto as_its_list = [](Label& label, const ListBox& list) { label.SetHint(list.hint()); };
  as_its_list(Label1, List1);
  as_its_list(Label2, List2);
  as_its_list(Label3, List3);
  as_its_list(Label4, List4);
  as_its_list(Label5, List5);
  as_its_list(Label6, List6);
  as_its_list(Label7, List7);
  as_its_list(Label8, List8);
  as_its_list(Label9, List9);
  as_its_list(Label10, List10);
  Command1.SetHint("Save any changes made");
  Command2.SetHint("Reload the currently saved settings");
  Command3.SetHint("Exit this program");
}

void RandomSetup::ConnectLists() {
  const auto number = [this](ListBox& list, int RandomSettings::*field) {
    list.on_click = [this, &list, field] { settings_.*field = WholeValue(list.selected_text()); };
  };
  number(List1, &RandomSettings::SongsPerStinger);
  number(List2, &RandomSettings::SongsPerLiner);
  number(List3, &RandomSettings::SongsPerBreak);
  number(List4, &RandomSettings::MaxSpotsPerBreak);
  // "Disable ...?": the stored number is 1 for "No".
  const auto disable = [this](ListBox& list, int RandomSettings::*field) {
    list.on_click = [this, &list, field] { settings_.*field = list.selected_text() == "No" ? 1 : 0; };
  };
  disable(List8, &RandomSettings::LinerEnable);
  disable(List9, &RandomSettings::StingerEnable);
  const auto yes = [this](ListBox& list, int RandomSettings::*field) {
    list.on_click = [this, &list, field] { settings_.*field = list.selected_text() == "Yes" ? 1 : 0; };
  };
  yes(List6, &RandomSettings::BreakOpensWithLiner);
  yes(List7, &RandomSettings::BreakClosesWithLiner);
  List5.on_click = [this] {
    for (int type = 0; type < 3; ++type) {
      if (List5.selected_text() == kBreakTypes[type]) settings_.BreakType = type;
    }
  };
  List10.on_click = [this] {
    settings_.PauseOverrideSecs = WholeValue(List10.selected_text());
    ShowOverride();
  };
}

void RandomSetup::Load() {
  FillLists();
  settings_ = ReadRandomSettings(platform_.files);
  ApplySetupDefaults(settings_);
  ShowSettings();
  ShowOverride();
}

void RandomSetup::FillLists() {
  FillNumbers(List1, 1, 15);
  FillNumbers(List2, 1, 15);
  FillNumbers(List3, 2, 50);
  FillNumbers(List4, 1, 10);
  List5.Clear();
  for (const char* type : kBreakTypes) List5.AddRow(type);
  for (ListBox* list : {&List6, &List7, &List8, &List9}) FillNoYes(*list);
  FillNumbers(List10, 0, 999);
}

void RandomSetup::ShowSettings() {
  List1.Select(settings_.SongsPerStinger - 1);
  List2.Select(settings_.SongsPerLiner - 1);
  List3.Select(settings_.SongsPerBreak - 2);
  List4.Select(settings_.MaxSpotsPerBreak - 1);
  List5.Select(settings_.BreakType);
  List6.Select(settings_.BreakOpensWithLiner);
  List7.Select(settings_.BreakClosesWithLiner);
  List8.Select(1 - settings_.LinerEnable);
  List9.Select(1 - settings_.StingerEnable);
  List10.Select(settings_.PauseOverrideSecs);
}

void RandomSetup::ShowOverride() {
  Label11.SetCaption("Current Value = " + std::to_string(settings_.PauseOverrideSecs) + " Seconds");
}

void RandomSetup::Save() {
  const Answer answer =
      platform_.dialogs.MessageBox("Do You Wish to Save the New Values?",
                                   box_style::kOkCancel + box_style::kInformation, "Save Random Settings");
  if (answer != Answer::kOk) return;
  Text1.SetText("Saving the new values...");
  Repaint();
  const Status written =
      platform_.files.Write(station_paths::kRandomSettings, FormatRandomSettings(settings_));
  // The fault itself is passed over, as in all settings files; the status does not claim what did not happen.
  Text1.SetText(written.ok()
                    ? "The new values are saved."
                    : "The new values could NOT be saved! [Error " + std::to_string(written.number()) + ']');
}

}  // namespace quixair
