#include "station/library/recording.h"

#include <algorithm>
#include <utility>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::size_t kFirstLabelLine = 3;  // counted from 0
constexpr std::size_t kSecondLabelLine = 4;
constexpr std::size_t kDataExtension = 4;

constexpr Field FieldIn(const RecordingLine& line, std::optional<RecordingKind> kind) {
  if (kind == RecordingKind::kSpot) return line.spot;
  if (kind == RecordingKind::kMusic) return line.music;
  if (kind == RecordingKind::kLiner) return line.liner;
  return line.spot == line.music && line.music == line.liner ? line.spot : Field::kNone;
}

std::size_t LineCount(std::optional<RecordingKind> kind) {
  if (!kind) return kSecondLabelLine + 1;
  std::size_t count = kRecordingLines.size();
  while (FieldIn(kRecordingLines[count - 1], kind) == Field::kNone) --count;
  return count;
}

std::string_view WithoutEmptyEnd(std::string_view lines) {
  const std::size_t last = lines.find_last_not_of("\r\n\x1A");
  return last == std::string_view::npos ? std::string_view() : lines.substr(0, last + 1);
}

}  // namespace

std::optional<RecordingKind> KindOf(std::string_view id) {
  for (const RecordingKind kind : {RecordingKind::kSpot, RecordingKind::kMusic, RecordingKind::kLiner}) {
    if (StartsWithIgnoringCase(id, LetterOf(kind))) return kind;
  }
  return std::nullopt;
}

bool IsSpotId(std::string_view id) {
  return KindOf(id) == RecordingKind::kSpot;
}
bool IsLinerId(std::string_view id) {
  return KindOf(id) == RecordingKind::kLiner;
}
bool IsLegalId(std::string_view id) {
  return StartsWithIgnoringCase(id, "LL");
}

std::string_view LetterOf(RecordingKind kind) {
  return kind == RecordingKind::kSpot ? "S" : kind == RecordingKind::kMusic ? "M" : "L";
}

Recording::Recording(std::string_view id, std::optional<RecordingKind> kind)
    : id_(id), kind_(kind), values_(LineCount(kind)) {}

Recording Recording::Of(RecordingKind kind, std::string_view content) {
  Recording recording({}, kind);
  SkipAndGoOn(recording.Parse(content));
  recording.id_ = recording.value(Field::kRecordingId);
  return recording;
}

std::size_t Recording::LineOf(Field field) const {
  if (field == Field::kFirstLabel) return kFirstLabelLine;
  if (field == Field::kSecondLabel) return kSecondLabelLine;
  const auto found = std::find_if(kRecordingLines.begin(), kRecordingLines.end(),
                                  [&](const RecordingLine& line) { return FieldIn(line, kind_) == field; });
  return static_cast<std::size_t>(found - kRecordingLines.begin());
}

const std::string& Recording::value(Field field) const {
  static const std::string kNothing;
  const std::size_t line = LineOf(field);
  return line < values_.size() ? values_[line] : kNothing;
}

std::string Recording::Take(Field field) {
  const std::size_t line = LineOf(field);
  return line < values_.size() ? std::exchange(values_[line], {}) : std::string();
}

void Recording::Set(Field field, std::string_view value) {
  const std::size_t line = LineOf(field);
  if (line < values_.size()) values_[line] = value;
}

Status Recording::Read(Files& files) {
  const Result<std::string> content = files.Read(station_paths::DataFile(id_));
  return content.ok() ? Parse(content.value()) : content.status();
}

Status Recording::ReadTo(Field last, Files& files) {
  const Status read = Read(files);
  return read.error() == RunTimeError::kInputPastEnd && LineOf(last) < lines_read_ ? Status() : read;
}

Status Recording::Write(Files& files, Durability durability) const {
  return files.Write(station_paths::DataFile(id_), Format(), durability);
}

Status Recording::Parse(std::string_view content) {
  ReadForm form(content);
  lines_read_ = 0;
  for (std::string& value : values_) {
    Result<std::string> line = form.Next();
    if (line.ok()) ++lines_read_;
    value = std::move(line).value_or({});
  }
  further_lines_ = form.AtEnd() ? std::string_view() : WithoutEmptyEnd(form.rest());
  return kind_ && lines_read_ == values_.size() ? RunTimeError::kNone : RunTimeError::kInputPastEnd;
}

std::string Recording::Format() const {
  WriteForm form;
  for (const std::string& value : values_) form.Text(value);
  return further_lines_.empty() ? form.bytes() : form.bytes() + further_lines_ + "\r\n";
}

std::vector<std::string> ListRecordings(Files& files, std::string_view pattern) {
  std::vector<std::string> ids = files.List(station_paths::kDataFolder, pattern).value_or({});
  for (std::string& id : ids) id.resize(id.size() - std::min(id.size(), kDataExtension));
  return ids;
}

std::vector<std::string> ListRecordings(Files& files, RecordingKind kind) {
  return ListRecordings(files, std::string(LetterOf(kind)) + "*.DAT");
}

}  // namespace quixair
