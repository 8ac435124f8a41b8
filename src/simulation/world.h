#pragma once

// What happens around a simulated station without its doing: files that other hands put, tear, take away and bring back, a
// disk that is full, a sound card that goes. It works on the folders that the station's drives mean, without regard to
// case, and needs no program to run.

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/simulated_station.h"
#include "station/host/drives.h"
#include "station/platform/run_time_error.h"

namespace quixair::simulation {

/// Drives C and D in an empty folder, for a station that is made on the spot.
Drives EmptyDrives(const std::filesystem::path& folder);

class World {
 public:
  explicit World(SimulatedStation& station) : station_(station) {}

  /// Makes the bytes the file's content, and missing folders with it.
  Status Put(std::string_view path, std::string_view bytes);
  /// Silent audio.
  Status PutAudio(std::string_view path, std::chrono::milliseconds length);
  /// Leaves the first bytes only.
  Status Tear(std::string_view path, std::uintmax_t bytes_left);
  Status Remove(std::string_view path);
  /// A file, a folder or a drive ("D:") is not there until it is brought back.
  Status TakeAway(std::string_view path);
  Status BringBack(std::string_view path);

  void LoseOutput();
  void LoseInput();
  /// Everything is there again: what was taken away, room on the disk, sound.
  void Mend();

 private:
  /// Where it lies, or would lie; 71 when there is no such drive.
  Result<std::filesystem::path> Place(std::string_view path) const;
  Result<std::filesystem::path> Existing(std::string_view path) const;
  Result<std::filesystem::path> PlaceToWrite(std::string_view path) const;

  SimulatedStation& station_;
  std::map<std::filesystem::path, std::filesystem::path> away_;  // from where, to where
};

}  // namespace quixair::simulation
