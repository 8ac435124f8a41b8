#pragma once

// A whole station in a temporary folder, on virtual time: what tests drive as an operator would and then look
// at. Its audio files are stand-ins that hold their length in milliseconds as text; anything else counts as
// unplayable.
//
//   class Rotation : public StationFixture {};
//   TEST_F(Rotation, SongEnds_NextSongStarts) {
//     AddLibrary(...); StartConsole(); Menu("RandomPlaybackMode"); Click("RandomForm1", "Start");
//     Advance(5min); ...

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/simulated_station.h"
#include "simulation/temporary_folder.h"
#include "station/random/random_settings.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"

namespace quixair::testing {

using namespace std::chrono_literals;

using simulation::TemporaryFolder;

/// What a stand-in's text says; 0 for anything else.
std::int32_t StandInLength(const std::filesystem::path& path);
std::string ReadHostFile(const std::filesystem::path& path);
void WriteHostFile(const std::filesystem::path& path, std::string_view bytes);
/// A text a line, as data files have them.
std::string Lines(const std::vector<std::string>& values);

/// One item that a channel was opened for.
struct Aired {
  std::string time;  // "20:00:18"
  int channel = 0;
  std::string id;  // the file's stem
  int length = 0;  // ms, 0 when it could not be opened
};

class StationFixture : public ::testing::Test {
 protected:
  StationFixture();

  // the station's files
  /// Where "C:\..." lies on the host; `path` with forward slashes, "QXAIR/RESET.DTA".
  std::filesystem::path Host(std::string_view path) const { return folder_.path() / "C" / path; }
  std::string FileText(std::string_view path) const { return ReadHostFile(Host(path)); }
  void PutFile(std::string_view path, std::string_view bytes) { WriteHostFile(Host(path), bytes); }
  void AddAudio(std::string_view id, int milliseconds, std::string_view extension = ".wav");
  void AddSong(std::string_view id, int milliseconds, std::string_view artist = "Artist");
  void AddLiner(std::string_view id, int milliseconds);
  void AddSpot(std::string_view id, int milliseconds, std::string_view product = "",
               std::string_view start = "", std::string_view kill = "", std::string_view account = "Account");
  void PutRotation(const std::vector<std::string>& spot_ids);
  void PutSettings(const RandomSettings& settings);
  /// A template of the given ids; a time of the day opens a stop set.
  void PutTemplate(std::string_view name, const std::vector<std::string>& ids);
  /// Songs M0001..., liners L0001..., legal ids LL001..., each of the given length.
  void AddLibrary(int songs, int liners, int legal_ids, int milliseconds = 10000);

  // the program and its operator
  void StartConsole();
  /// Opens Random playback from the console's menu and presses START.
  void StartRandom();
  /// Opens Random playback, chooses a template in its frame and presses START.
  void StartRandomWith(std::string_view template_name);
  void Menu(std::string_view item, std::initializer_list<const char*> answers = {});
  /// Starts the console and chooses a menu item in it.
  void StartAt(std::string_view item);
  /// The answers are those of the boxes that the click brings up.
  void Click(std::string_view screen, std::string_view button,
             std::initializer_list<const char*> answers = {});
  /// Selects a row as a person does: by its text, or counted from 0.
  ListBox& Select(std::string_view screen, std::string_view list, std::string_view row);
  ListBox& Select(std::string_view screen, std::string_view list, int row);
  void Advance(std::chrono::milliseconds span) { station_.time().Advance(span); }
  void SetClock(std::string_view moment);
  void QueueAnswer(std::string answer) { station_.dialogs().QueueAnswer(std::move(answer)); }

  /// Fails the test when it is not there.
  template <class Kind>
  Kind& Find(std::string_view screen, std::string_view control);
  std::string Shown(std::string_view screen, std::string_view control);
  std::vector<std::string> Rows(std::string_view screen, std::string_view list);
  bool IsOpen(std::string_view screen) { return station_.FindScreen(screen) != nullptr; }

  /// What was opened since the last ForgetAired.
  const std::vector<Aired>& aired() const { return aired_; }
  std::vector<std::string> AiredIds() const;
  void ForgetAired() { aired_.clear(); }
  const std::vector<simulation::ShownBox>& boxes() { return station_.dialogs().shown(); }

  TemporaryFolder folder_;
  simulation::SimulatedStation station_;
  std::vector<Aired> aired_;
  std::vector<std::string> runs_;     // outside programs started
  std::vector<bool> session_starts_;  // what was set, in order
};

template <class Kind>
Kind& StationFixture::Find(std::string_view screen, std::string_view control) {
  Screen* open = station_.FindScreen(screen);
  if (open == nullptr) throw std::runtime_error("the screen is not open: " + std::string(screen));
  auto* found = dynamic_cast<Kind*>(open->FindControl(control));
  if (found == nullptr) throw std::runtime_error("no such control: " + std::string(control));
  return *found;
}

}  // namespace quixair::testing
