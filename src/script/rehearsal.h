#pragma once

// A rehearsal: the coming hours of a station in virtual time, on a copy, with a line for each item that would be aired.
// The operator here does what is needed to get on the air and reads nothing but the screens.

#include <chrono>
#include <filesystem>
#include <ostream>

#include "simulation/simulated_station.h"

namespace quixair::script {

/// The station below `target`: real copies of the folders that the program writes to, links to everything else, which is
/// the audio. Links to the station's own files are followed, so that nothing of it can be changed. Throws
/// std::filesystem::filesystem_error when the copy cannot be whole.
Drives CopyStation(const Drives& drives, const std::filesystem::path& target);

/// Starts the program and lets time pass. False when a box asked for an operator or the program ended, both of which are
/// printed, or when it did not come on the air.
bool Rehearse(simulation::SimulatedStation& station, std::chrono::milliseconds span, std::ostream& out);

}  // namespace quixair::script
