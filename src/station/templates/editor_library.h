#pragma once

// The station's recordings as the template editor lists them: of each kind the rows with their columns and,
// behind each row, what an entry takes from the recording.

#include <functional>
#include <string>
#include <vector>

#include "station/library/recording_file.h"

namespace quixair {

struct EditorRecording {
  std::string RecordingId;
  std::string first_label;   // account of a spot, artist of a song, title of a liner
  std::string second_label;  // title of a spot or song, announcer of a liner
  std::string Length;
};

struct EditorList {
  std::vector<EditorRecording> recordings;
  std::vector<std::string> rows;
};

/// In the order of the folder; a data file that cannot be read gives an empty row. `progress` is told the count
/// now and then.
EditorList LoadEditorList(Files& files, RecordingKind kind, const std::function<void(int)>& progress);

}  // namespace quixair
