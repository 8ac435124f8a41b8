#include "station/recording/record_layout.h"

#include <algorithm>

namespace quixair {
namespace {

using Slot = RecordSlot;

constexpr int kTypedId = 5;

const RecordLayout kSpot = {RecordingKind::kSpot,
                            'S',
                            {{Slot::kLength, "Text4", "Length:", 0},
                             {Slot::kId, "Text2", "Spot I.D.:", kTypedId},
                             {Slot::kDrive, "Text10", "Drive:", 1},
                             {Slot::kText, "Text3", "Account:", 15},
                             {Slot::kText, "Text5", "Title:", 15},
                             {Slot::kStartDate, "Start", "Start:", 2},
                             {Slot::kKillDate, "Kill", "Kill:", 2},
                             {Slot::kText, "Text8", "Product:", 1},
                             {Slot::kText, "Text9", "Announcer:", 1},
                             {Slot::kPreset, "", "", 0}},
                            0};
const RecordLayout kMusic = {RecordingKind::kMusic,
                             'M',
                             {{Slot::kLength, "Text4", "Length:", 0},
                              {Slot::kId, "Text2", "Song I.D.:", kTypedId},
                              {Slot::kDrive, "Text10", "Drive:", 1},
                              {Slot::kText, "Text3", "Artist:", 20},
                              {Slot::kText, "Text5", "Title:", 20},
                              {Slot::kText, "Text8", "Rotation:", 1},
                              {Slot::kStartDate, "Start", "Start:", 2},
                              {Slot::kYear, "FromYear", "From Year:", 4}},
                             2};
const RecordLayout kLiner = {RecordingKind::kLiner,
                             'L',
                             {{Slot::kLength, "Text4", "Length:", 0},
                              {Slot::kId, "Text2", "Liner I.D.:", kTypedId},
                              {Slot::kDrive, "Text10", "Drive:", 1},
                              {Slot::kText, "Text3", "Title:", 20},
                              {Slot::kText, "Text8", "Announcer:", 1},
                              {Slot::kText, "Text9", "Type:", 1},
                              {Slot::kStartDate, "Start", "Start:", 2},
                              {Slot::kKillDate, "Kill", "Kill:", 2}},
                             3};

}  // namespace

const RecordLayout& LayoutOf(RecordingKind kind) {
  switch (kind) {
    case RecordingKind::kSpot:
      return kSpot;
    case RecordingKind::kMusic:
      return kMusic;
    case RecordingKind::kLiner:
      break;
  }
  return kLiner;
}

std::string& ValueOf(RecordValues& values, const RecordLayout& layout, RecordSlot slot) {
  const auto found = std::find_if(layout.lines.begin(), layout.lines.end(),
                                  [slot](const RecordLine& line) { return line.slot == slot; });
  return values.at(static_cast<std::size_t>(found - layout.lines.begin()));
}

}  // namespace quixair
