#include "station/templates/editor_library.h"

#include <algorithm>
#include <utility>

namespace quixair {
namespace {

using enum Field;

constexpr std::size_t kBlanksBeforeIndex = 15;
constexpr std::size_t kIndexWidth = 4;
constexpr std::size_t kAsItIs = 0;

/// A field and how wide it is shown.
struct Column {
  Field field;
  std::size_t width;
};

struct LibraryForm {
  const char* heading;
  std::vector<Column> columns;
};

// The columns with a drive stand centred below their headings with a gap between each; the plain ones are as
// wide as stations know them.
const LibraryForm kSpots = {" I.D.   Account         Title            Len    Start    Kill   P A",
                            {{kRecordingId, 8},
                             {kAccount, 15},
                             {kTitle, 15},
                             {kLength, 7},
                             {kStartDate, 9},
                             {kKillDate, 9},
                             {kProduct, 2},
                             {kAnnouncer, kAsItIs}}};
const LibraryForm kMusic = {
    " I.D.     Artist                 Title            Len   From Yr.",
    {{kRecordingId, 8}, {kArtist, 20}, {kTitle, 20}, {kLength, 8}, {kFromYear, kAsItIs}}};
const LibraryForm kLiners = {" I.D.   Description     Announcer Type     Len      Start    Kill   ",
                             {{kRecordingId, 8},
                              {kTitle, 15},
                              {kAnnouncer, 1},
                              {kLinerType, 1},
                              {kLength, 7},
                              {kStartDate, 9},
                              {kKillDate, 11}}};
const LibraryForm kSpotsWithDrive = {
    " I.D.     Account         Title            Len    Start    Kill   P A Dr",
    {{kRecordingId, 9},
     {kAccount, 16},
     {kTitle, 16},
     {kLength, 7},
     {kStartDate, 9},
     {kKillDate, 9},
     {kProduct, 2},
     {kAnnouncer, 2},
     {kDrive, kAsItIs}}};
const LibraryForm kMusicWithDrive = {
    " I.D.       Artist                 Title            Len   From Yr. Dr",
    {{kRecordingId, 9}, {kArtist, 21}, {kTitle, 21}, {kLength, 8}, {kFromYear, 8}, {kDrive, kAsItIs}}};
const LibraryForm kLinersWithDrive = {
    " I.D.     Description     Announcer Type     Len      Start    Kill   Dr",
    {{kRecordingId, 9},
     {kTitle, 21},
     {kAnnouncer, 7},
     {kLinerType, 7},
     {kLength, 8},
     {kStartDate, 9},
     {kKillDate, 9},
     {kDrive, kAsItIs}}};

const LibraryForm& FormOf(RecordingKind kind, LibraryColumns columns) {
  const bool plain = columns == LibraryColumns::kPlain;
  switch (kind) {
    case RecordingKind::kSpot:
      return plain ? kSpots : kSpotsWithDrive;
    case RecordingKind::kMusic:
      return plain ? kMusic : kMusicWithDrive;
    case RecordingKind::kLiner:
      break;
  }
  return plain ? kLiners : kLinersWithDrive;
}

std::string RowOf(const LibraryForm& form, const Recording& recording, std::size_t index) {
  std::string row;
  for (const Column& column : form.columns) {
    const std::string& text = recording.value(column.field);
    const std::size_t begin = row.size();
    row += column.width == kAsItIs ? text : text.substr(0, column.width);
    if (column.width != kAsItIs) row.resize(begin + column.width, ' ');
  }
  const std::string number = std::to_string(index);
  row.append(kBlanksBeforeIndex + kIndexWidth - std::min(kIndexWidth, number.size()), ' ');
  return row + number;
}

EditorRecording EditorRecordingOf(const Recording& recording) {
  return {.RecordingId = recording.value(kRecordingId),
          .first_label = recording.value(kFirstLabel),
          .second_label = recording.value(kSecondLabel),
          .Length = recording.value(kLength),
          .Drive = recording.value(kDrive)};
}

}  // namespace

const char* LibraryHeading(RecordingKind kind, LibraryColumns columns) {
  return FormOf(kind, columns).heading;
}

void EditorList::List(Files& files) {
  ids_ = ListRecordings(files, kind_);
  recordings_.clear();
  recordings_.reserve(ids_.size());
  rows_.clear();
  rows_.reserve(ids_.size());
}

Status EditorList::ReadNext(Files& files) {
  const LibraryForm& form = FormOf(kind_, columns_);
  Recording recording(next());
  const bool whole = kind_ != RecordingKind::kSpot;  // the preset length of a spot is not shown
  const Status read = whole ? recording.Read(files) : recording.ReadTo(kAnnouncer, files);
  recordings_.push_back(EditorRecordingOf(recording));
  rows_.push_back(RowOf(form, recording, recordings_.size()));
  return read;
}

Result<EditorRecording> ReadEditorRecording(Files& files, std::string_view id) {
  Recording recording(id);
  const Status read = recording.ReadTo(kSecondLabel, files);
  if (!read.ok()) return read.error();
  return EditorRecordingOf(recording);
}

}  // namespace quixair
