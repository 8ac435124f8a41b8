#pragma once

// The station's recordings as the screens list them that build a list of entries: of each kind the rows with
// their columns and, behind each row, what an entry takes from the recording. A library of ten thousand is read
// a file at a time, so that its owner can share the reading out over many events.

#include <string>
#include <string_view>
#include <vector>

#include "station/library/recording.h"

namespace quixair {

struct EditorRecording {
  std::string RecordingId;
  std::string first_label;   // account of a spot, artist of a song, title of a liner
  std::string second_label;  // title of a spot or song, announcer of a liner
  std::string Length;
  std::string Drive;
};

/// Which columns the rows of a library list have.
enum class LibraryColumns { kPlain, kWithDrive };

/// What stands over the rows.
const char* LibraryHeading(RecordingKind kind, LibraryColumns columns);

class EditorList {
 public:
  EditorList(RecordingKind kind, LibraryColumns columns) : kind_(kind), columns_(columns) {}

  /// Begins anew with the data files that the folder holds now; none has been read.
  void List(Files& files);
  /// How many there are, read or not.
  int count() const { return static_cast<int>(ids_.size()); }
  bool complete() const { return recordings_.size() == ids_.size(); }
  /// The id whose data file is the next.
  const std::string& next() const { return ids_.at(recordings_.size()); }
  /// Reads the next data file. One that cannot be read, or is too short, gives a row of what there is, and the
  /// fault.
  Status ReadNext(Files& files);

  RecordingKind kind() const { return kind_; }
  LibraryColumns columns() const { return columns_; }
  const std::vector<EditorRecording>& recordings() const { return recordings_; }
  /// For the list box; the rows of this list are gone then.
  std::vector<std::string> TakeRows() { return std::move(rows_); }

 private:
  RecordingKind kind_;
  LibraryColumns columns_;
  std::vector<std::string> ids_;
  std::vector<EditorRecording> recordings_;
  std::vector<std::string> rows_;
};

/// The recording of one data file. 53 not found, 62 when its first lines are not all there.
Result<EditorRecording> ReadEditorRecording(Files& files, std::string_view id);

}  // namespace quixair
