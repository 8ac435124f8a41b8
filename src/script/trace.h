#pragma once

// Prints what happens in a simulated station, one event a line with its civil time first.

#include <ostream>
#include <string>

#include "simulation/simulated_station.h"

namespace quixair::script {

/// A box and its answer in one line.
std::string InWords(const simulation::ShownBox& box);

class Trace {
 public:
  /// Connects itself to the station; both outlive the run.
  Trace(simulation::SimulatedStation& station, std::ostream& out);
  void SetQuiet(bool quiet) { quiet_ = quiet; }

 private:
  void Event(const std::string& text);
  void Print(const simulation::PrintJob& job);
  void Channel(const simulation::ChannelEvent& event);

  simulation::SimulatedStation& station_;
  std::ostream& out_;
  bool quiet_ = false;
};

}  // namespace quixair::script
