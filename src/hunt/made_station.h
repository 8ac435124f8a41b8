#pragma once

// The station of a run, drawn from the seed and written as statements: a library with its flaws, settings, templates of
// every kind around the hour at which the run begins. What is in it is kept for whoever misbehaves later.

#include <string>
#include <vector>

#include "hunt/draw.h"
#include "hunt/script_text.h"
#include "station/platform/clock.h"

namespace quixair::hunt {

struct MadeRecording {
  std::string id;
  char drive = 'C';
  std::string audio;  // its path
};

struct MadeStation {
  CivilTime begins;
  std::vector<MadeRecording> recordings;
  std::vector<std::string> templates;  // file names
  bool stop_sets = false;
};

/// Adds the statements that make it; the first three set the clock, the draws and the answers.
MadeStation MakeStation(Draw& draw, Script& script);

/// A statement that writes a file of these lines.
std::string Put(const std::string& path, const std::vector<std::string>& lines);
/// As a value of the station's files.
std::string Text(const std::string& value);
/// The ten numbers of the settings of Random playback.
std::vector<std::string> DrawRandomSettings(Draw& draw, int break_type);
/// The data file of a recording, with dates near the day of `now`.
std::vector<std::string> DrawDataFile(Draw& draw, const MadeRecording& recording, int milliseconds,
                                      const CivilTime& now);

}  // namespace quixair::hunt
