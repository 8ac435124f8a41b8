#include "script/rehearsal.h"

#include <algorithm>
#include <array>
#include <string>

#include "script/script_language.h"
#include "script/trace.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"

namespace quixair::script {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kSplash{3};
constexpr std::array kPlaybackScreens = {"RandomForm1", "PickListForm1"};

void CopyFollowingLinks(const fs::path& from, const fs::path& to) {
  if (fs::is_directory(from)) {
    fs::create_directories(to);
    for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
      CopyFollowingLinks(entry.path(), to / entry.path().filename());
    }
  } else if (fs::is_regular_file(from)) {
    fs::copy_file(from, to);
  }
}

bool IsWrittenTo(const fs::path& folder) {
  const std::string name = UpperCased(folder.filename().string());
  return name == "QXAIR" || name == "QXDATA" || name == "QXTEMPLT";
}

template <class Kind>
Kind* UsableControl(simulation::SimulatedStation& station, const char* screen, const char* name) {
  Screen* open = station.FindScreen(screen);
  if (open == nullptr) return nullptr;
  auto* control = dynamic_cast<Kind*>(open->FindControl(name));
  return control != nullptr && control->visible_to_person() && control->enabled_for_person() ? control
                                                                                             : nullptr;
}

void Click(simulation::SimulatedStation& station, const char* screen, const char* name) {
  if (auto* button = UsableControl<Button>(station, screen, name)) button->Click();
}

/// The day's stop sets, or none when the day has no template.
void ChooseTemplate(simulation::SimulatedStation& station) {
  auto* daily = UsableControl<ListBox>(station, "RandomForm1", "File2");
  if (daily == nullptr) return;  // nothing is asked
  const std::string name = DayName(station.time().Now()) + ".TPD";
  const auto found = std::find_if(daily->rows().begin(), daily->rows().end(),
                                  [&](const std::string& row) { return EqualsIgnoringCase(row, name); });
  if (found == daily->rows().end()) {
    station.dialogs().QueueAnswer("OK");
    return Click(station, "RandomForm1", "Quit");
  }
  daily->PersonSelects({static_cast<int>(found - daily->rows().begin())});
  Click(station, "RandomForm1", "Done");
}

/// A run that was broken off goes on by itself; any other station is put on the air by hand.
void GoOnTheAir(simulation::SimulatedStation& station) {
  station.StartProgram();
  station.OpenConsole();
  station.time().Advance(kSplash);
  const bool opened_by_itself = std::any_of(kPlaybackScreens.begin(), kPlaybackScreens.end(),
                                            [&](const char* name) { return station.FindScreen(name); });
  if (!opened_by_itself) {
    if (auto* item = UsableControl<MenuItem>(station, "Console", "RandomPlaybackMode")) item->Choose();
  }
  ChooseTemplate(station);
  for (const char* name : kPlaybackScreens) Click(station, name, "Start");
}

}  // namespace

Drives CopyStation(const Drives& drives, const fs::path& target) {
  Drives copied;
  for (const auto& [letter, directory] : drives.table()) {
    const fs::path copy = target / std::string(1, letter);
    copied.Set(letter, copy);
    if (!fs::is_directory(directory)) continue;  // a drive that is away is away in the copy too
    fs::create_directories(copy);
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
      const fs::path to = copy / entry.path().filename();
      if (IsWrittenTo(entry.path())) {
        CopyFollowingLinks(entry.path(), to);
      } else {
        fs::create_symlink(fs::absolute(entry.path()), to);
      }
    }
  }
  return copied;
}

bool Rehearse(simulation::SimulatedStation& station, std::chrono::milliseconds span, std::ostream& out) {
  bool aired = false;
  bool asked = false;
  const auto print = [&](const std::string& text) {
    out << Stamp(station.time().Now()) << ' ' << text << '\n';
  };
  station.media().on_event = [&](const simulation::ChannelEvent& event) {
    if (event.act != simulation::ChannelEvent::Act::kOpen || event.channel > 2) return;
    aired = true;
    print("on air " + ToUtf8(event.file) + ' ' + std::to_string(event.length));
  };
  station.dialogs().on_box = [&](const simulation::ShownBox& box) { print(InWords(box)); };
  station.dialogs().on_unexpected = [&](const simulation::ShownBox&) { asked = true; };
  station.on_fault = [&](const std::string& what) { print("fault " + Quoted(what)); };
  GoOnTheAir(station);
  if (station.running()) station.time().Advance(span);
  return aired && !asked && station.running();
}

}  // namespace quixair::script
