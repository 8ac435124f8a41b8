#pragma once

// Stations for the benchmarks: temporary folders with a library of the size asked for, made once per size,
// whose audio files are stand-ins that hold their length in milliseconds as text.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "simulation/simulated_station.h"
#include "station/random/random_settings.h"

namespace quixair::bench {

class BenchStation {
 public:
  /// `songs` songs of `song_ms` each, beside ten liners, four legal ids and forty spots in the rotation.
  BenchStation(int songs, int song_ms);
  ~BenchStation();
  BenchStation(const BenchStation&) = delete;
  BenchStation& operator=(const BenchStation&) = delete;

  /// A program on this station in virtual time, from an evening's hour on.
  std::unique_ptr<simulation::SimulatedStation> Start() const;
  /// The data files on the host in their folder's order: a load opens each of them once.
  std::vector<std::string> DataFiles() const;
  /// Stop sets by the clock: for each day of the week a template of `sets` sets, evenly over the day, of `rows` spots.
  void PutStopSets(int sets, int rows) const;
  void PutOverlap(int seconds) const;
  /// A daily pick-list for each day, of so many songs, and the files that hand Sunday's over to playback.
  void PutPickLists(int events) const;
  const std::filesystem::path& folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

/// The settings of the benchmarks: liners, internal breaks, two spots each.
RandomSettings TypicalSettings();

/// The largest resident memory of this process so far, in MiB; set back where the system allows it.
double PeakMebibytes();
void ResetPeakMemory();
/// The resident memory of this moment.
double ResidentMebibytes();

double SecondsOf(const std::function<void()>& work);
/// Opens, reads and closes each file: what no load can be faster than.
void ReadAll(const std::vector<std::string>& files);

void OpenRandom(simulation::SimulatedStation& station);
/// What the operator does in the frame that asks for a template.
void ChooseTodaysTemplate(simulation::SimulatedStation& station);
void PressStart(simulation::SimulatedStation& station);

}  // namespace quixair::bench
