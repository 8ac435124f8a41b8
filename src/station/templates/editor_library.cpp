#include "station/templates/editor_library.h"

#include <algorithm>
#include <utility>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"

namespace quixair {
namespace {

constexpr std::size_t kBlanksBeforeIndex = 15;
constexpr std::size_t kIndexWidth = 4;
constexpr std::size_t kRecordingFields = 5;
constexpr std::size_t kAsItIs = 0;

/// A field of the data file, counted from 0, and how wide it is shown.
struct Column {
  std::size_t field;
  std::size_t width;
};

struct LibraryForm {
  const char* pattern;
  const char* heading;
  std::vector<Column> columns;
};

// The columns with a drive stand centred below their headings with a gap between each; the plain ones are as
// wide as stations know them.
const LibraryForm kSpots = {"S*.DAT",
                            " I.D.   Account         Title            Len    Start    Kill   P A",
                            {{1, 8}, {3, 15}, {4, 15}, {0, 7}, {5, 9}, {6, 9}, {7, 2}, {8, kAsItIs}}};
const LibraryForm kMusic = {"M*.DAT",
                            " I.D.     Artist                 Title            Len   From Yr.",
                            {{1, 8}, {3, 20}, {4, 20}, {0, 8}, {7, kAsItIs}}};
const LibraryForm kLiners = {"L*.DAT",
                             " I.D.   Description     Announcer Type     Len      Start    Kill   ",
                             {{1, 8}, {3, 15}, {4, 1}, {5, 1}, {0, 7}, {6, 9}, {7, 11}}};
const LibraryForm kSpotsWithDrive = {
    "S*.DAT",
    " I.D.     Account         Title            Len    Start    Kill   P A Dr",
    {{1, 9}, {3, 16}, {4, 16}, {0, 7}, {5, 9}, {6, 9}, {7, 2}, {8, 2}, {2, kAsItIs}}};
const LibraryForm kMusicWithDrive = {"M*.DAT",
                                     " I.D.       Artist                 Title            Len   From Yr. Dr",
                                     {{1, 9}, {3, 21}, {4, 21}, {0, 8}, {7, 8}, {2, kAsItIs}}};
const LibraryForm kLinersWithDrive = {
    "L*.DAT",
    " I.D.     Description     Announcer Type     Len      Start    Kill   Dr",
    {{1, 9}, {3, 21}, {4, 7}, {5, 7}, {0, 8}, {6, 9}, {7, 9}, {2, kAsItIs}}};

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

std::size_t FieldsOf(const LibraryForm& form) {
  std::size_t last = 0;
  for (const Column& column : form.columns) last = std::max(last, column.field);
  return last + 1;
}

using Fields = std::vector<std::string>;

std::string RowOf(const LibraryForm& form, const Fields& fields, std::size_t index) {
  std::string row;
  for (const Column& column : form.columns) {
    const std::string& text = fields[column.field];
    const std::size_t begin = row.size();
    row += column.width == kAsItIs ? text : text.substr(0, column.width);
    if (column.width != kAsItIs) row.resize(begin + column.width, ' ');
  }
  const std::string number = std::to_string(index);
  row.append(kBlanksBeforeIndex + kIndexWidth - std::min(kIndexWidth, number.size()), ' ');
  return row + number;
}

EditorRecording RecordingOf(const Fields& fields) {
  return {.RecordingId = fields[1],
          .first_label = fields[3],
          .second_label = fields[4],
          .Length = fields[0],
          .Drive = fields[2]};
}

/// The first fields, empty where the file has none, and what was wrong with it.
std::pair<Fields, Status> ReadFields(Files& files, std::string_view id, std::size_t count) {
  const Result<std::string> content = files.Read(station_paths::DataFile(id));
  if (!content.ok()) return {Fields(count), content.status()};
  Fields fields = ReadValues(content.value(), count);
  const Status status = fields.size() < count ? RunTimeError::kInputPastEnd : RunTimeError::kNone;
  fields.resize(count);
  return {std::move(fields), status};
}

}  // namespace

const char* LibraryHeading(RecordingKind kind, LibraryColumns columns) {
  return FormOf(kind, columns).heading;
}

void EditorList::List(Files& files) {
  ids_ = ListRecordings(files, FormOf(kind_, columns_).pattern);
  recordings_.clear();
  recordings_.reserve(ids_.size());
  rows_.clear();
  rows_.reserve(ids_.size());
}

Status EditorList::ReadNext(Files& files) {
  const LibraryForm& form = FormOf(kind_, columns_);
  const auto [fields, status] = ReadFields(files, next(), FieldsOf(form));
  recordings_.push_back(RecordingOf(fields));
  rows_.push_back(RowOf(form, fields, recordings_.size()));
  return status;
}

Result<EditorRecording> ReadEditorRecording(Files& files, std::string_view id) {
  const auto [fields, status] = ReadFields(files, id, kRecordingFields);
  if (!status.ok()) return status.error();
  return RecordingOf(fields);
}

}  // namespace quixair
