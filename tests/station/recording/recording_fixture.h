#pragma once

// A station whose operator is at the recording screens.

#include <gmock/gmock.h>

#include "station/screen/recorder_control.h"
#include "support/station_fixture.h"

namespace quixair::testing {

class RecordingFixture : public StationFixture {
 protected:
  /// Key by key, as a person does, into what is in the box.
  void Type(std::string_view screen, std::string_view box, std::string_view keys) {
    auto& control = Find<TextBox>(screen, box);
    for (const char key : keys) control.TypeKey(key);
  }
  void Leave(std::string_view screen, std::string_view box) { Find<TextBox>(screen, box).LeaveFocus(); }
  /// Types into an empty box and goes on to the next.
  void Fill(std::string_view screen, std::string_view box, std::string_view keys) {
    Find<TextBox>(screen, box).Edit({});
    Type(screen, box, keys);
    Leave(screen, box);
  }
  void DoubleClick(std::string_view screen, std::string_view list, std::string_view row) {
    auto& control = Find<ListBox>(screen, list);
    const auto found = std::find(control.rows().begin(), control.rows().end(), row);
    if (found == control.rows().end()) throw std::runtime_error("no such row: " + std::string(row));
    control.PersonSelects({static_cast<int>(found - control.rows().begin())});
    control.DoubleClick();
  }
  bool Enabled(std::string_view screen, std::string_view control) {
    return station_.FindScreen(screen)->FindControl(control)->enabled_for_person();
  }
  bool Exists(std::string_view path) const { return std::filesystem::exists(Host(path)); }
  /// From here on the file cannot be written: a folder of its name stands in its place.
  void Block(std::string_view path) { std::filesystem::create_directories(Host(path)); }

  void OpenEntry(std::string_view screen) {
    StartConsole();
    Menu(screen == "RecordSpot" ? "Spots" : screen == "RecordASong" ? "Music" : "Liners");
  }
  /// New Recording, and an id that is left as typed.
  void BeginNew(std::string_view screen, std::string_view id) {
    OpenEntry(screen);
    Click(screen, "Command1");
    Type(screen, "Text2", id);
    Leave(screen, "Text2");
  }
};

}  // namespace quixair::testing
