#pragma once

// The recording screens: entry of a recording's data, capture, import, the time announcements. This header is
// what they know of the three kinds of recordings as data: which box of a screen holds which line of the data
// file, under which caption and how long it may be. Entry and capture screens of all kinds are made from it.

#include <string>
#include <string_view>
#include <vector>

#include "station/library/recording_file.h"

namespace quixair {

/// What a line of the data file is to the recording screens.
enum class RecordSlot { kLength, kId, kDrive, kText, kStartDate, kKillDate, kYear, kPreset };

struct RecordLine {
  RecordSlot slot = RecordSlot::kText;
  const char* box = "";      // the control that shows it; a date has three, by the endings MM, DD and YY
  const char* caption = "";  // before the box
  int limit = 0;             // of what can be typed
};

struct RecordLayout {
  RecordingKind kind;
  char letter;                    // the first of every id of the kind
  std::vector<RecordLine> lines;  // in the order of the data file
  int empty_lines;  // a capture adds so many empty lines: wanted, programs that read the files know them so

  std::string_view Letter() const { return {&letter, 1}; }
  bool HasPreset() const { return lines.back().slot == RecordSlot::kPreset; }
};

const RecordLayout& LayoutOf(RecordingKind kind);

/// The values of a data file, one for each line of the layout.
using RecordValues = std::vector<std::string>;
/// The value of the first line of that slot; the layout has one.
std::string& ValueOf(RecordValues& values, const RecordLayout& layout, RecordSlot slot);

}  // namespace quixair
