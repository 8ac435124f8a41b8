#pragma once

// A station whose Pick-List playback is started through its hand-over files.

#include "station/onair/on_air_status.h"
#include "support/station_fixture.h"

namespace quixair::testing {

inline constexpr const char* kPick = "PickListForm1";

class PickListFixture : public StationFixture {
 protected:
  /// Songs M0001... of `milliseconds`, liners and legal ids.
  PickListFixture() { AddLibrary(9, 2, 2, 20000); }

  void SetOverlap(int seconds) { PutFile("QXAIR/overlap.dta", "\"" + std::to_string(seconds) + "\"\r\n"); }
  void SetRepeat() { PutFile("QXAIR/PICKREPEAT.DTA", "1\r\n"); }
  /// The list as a template, in force for the next opening.
  void PutList(const std::vector<std::string>& ids, std::string_view name = "A.TPP") {
    PutTemplate(name, ids);
    PutFile("QXAIR/RESET.DTA", "\"0\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n\"X\"\r\n");
    HandOver("0", name);
  }
  void HandOver(std::string_view pik_mode, std::string_view name) {
    PutFile("QXAIR/PIKMODE.DTA", "\"" + std::string(pik_mode) + "\"\r\n");
    PutFile("QXAIR/STOREPIK.DTA", "\"" + std::string(name) + "\"\r\n");
  }
  void OpenList() {
    StartConsole();
    station_.Do([this] { station_.platform().screens.Open(kPick); });
  }
  void StartList() {
    OpenList();
    Click(kPick, "Start");
  }

  MediaControl& Channel(int number) {
    return Find<MediaControl>(kPick, "MMControl" + std::to_string(number));
  }
  bool Plays(int number) { return Channel(number).Mode() == ChannelMode::kPlaying; }
  std::string EventText() { return Shown(kPick, "EventLbl"); }
  std::string LastErrorRow() { return Rows(kPick, "List6").back(); }
};

using Ids = std::vector<std::string>;

}  // namespace quixair::testing
