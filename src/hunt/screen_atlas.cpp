#include "hunt/screen_atlas.h"

#include <algorithm>
#include <array>

#include "simulation/simulated_station.h"
#include "simulation/temporary_folder.h"
#include "simulation/world.h"
#include "station/screen/screen.h"
#include "station/screen_catalogue.h"

namespace quixair::hunt {
namespace {

constexpr std::array kActedUpon = {
    ControlKind::kTextBox, ControlKind::kListBox,     ControlKind::kCheckBox,   ControlKind::kOptionButton,
    ControlKind::kButton,  ControlKind::kFileListBox, ControlKind::kDirListBox, ControlKind::kDriveListBox};

}  // namespace

ScreenAtlas DrawAtlas() {
  const simulation::TemporaryFolder folder;
  simulation::SimulatedStation station(
      simulation::EmptyDrives(folder.path()), CivilTime{}, [](const auto&) { return 0; }, 1);
  station.StartProgram();
  ScreenAtlas atlas;
  for (const auto& [name, make] : StationScreens()) {
    const std::unique_ptr<Screen> screen = make(station.platform());
    for (const Control* control : screen->controls()) {
      if (std::count(kActedUpon.begin(), kActedUpon.end(), control->kind()) == 0) continue;
      atlas[name].push_back({control->name(), control->kind()});
    }
  }
  return atlas;
}

}  // namespace quixair::hunt
