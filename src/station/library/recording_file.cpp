#include "station/library/recording_file.h"

#include <utility>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

// The fields of each kind in the order of their lines: what both the parser and the writer go by.
constexpr auto kSpotOrder = {&SpotRecord::Length,      &SpotRecord::RecordingId, &SpotRecord::Drive,
                             &SpotRecord::Account,     &SpotRecord::Title,       &SpotRecord::StartDate,
                             &SpotRecord::KillDate,    &SpotRecord::Product,     &SpotRecord::Announcer,
                             &SpotRecord::PresetLength};
constexpr auto kMusicOrder = {&MusicRecord::Length,    &MusicRecord::RecordingId, &MusicRecord::Drive,
                              &MusicRecord::Artist,    &MusicRecord::Title,       &MusicRecord::Rotation,
                              &MusicRecord::StartDate, &MusicRecord::FromYear};
constexpr auto kLinerOrder = {&LinerRecord::Length,    &LinerRecord::RecordingId, &LinerRecord::Drive,
                              &LinerRecord::Title,     &LinerRecord::Announcer,   &LinerRecord::LinerType,
                              &LinerRecord::StartDate, &LinerRecord::KillDate};

template <class Record, class Order>
Result<Record> Parse(std::string_view content, const Order& order) {
  Record record;
  ReadForm form(content);
  for (const auto field : order) {
    Result<std::string> value = form.Next();
    if (!value.ok()) return value.error();
    record.*field = std::move(value).value();
  }
  return record;
}

template <class Record, class Order>
std::string Format(const Record& record, const Order& order) {
  WriteForm form;
  for (const auto field : order) form.Text(record.*field);
  return form.bytes();
}

template <class Record>
Result<Record> ReadRecord(Files& files, std::string_view id, Result<Record> (*parse)(std::string_view)) {
  const Result<std::string> content = files.Read(station_paths::DataFile(id));
  if (!content.ok()) return content.error();
  return parse(content.value());
}

constexpr std::size_t kDataExtension = 4;

}  // namespace

bool IsSpotId(std::string_view id) {
  return StartsWithIgnoringCase(id, "S");
}
bool IsMusicId(std::string_view id) {
  return StartsWithIgnoringCase(id, "M");
}
bool IsLinerId(std::string_view id) {
  return StartsWithIgnoringCase(id, "L");
}
bool IsLegalId(std::string_view id) {
  return StartsWithIgnoringCase(id, "LL");
}

std::size_t FieldCount(std::string_view id) {
  if (IsSpotId(id)) return kSpotFields;
  if (IsMusicId(id)) return kMusicFields;
  return IsLinerId(id) ? kLinerFields : 0;
}

Result<SpotRecord> ParseSpot(std::string_view content) {
  return Parse<SpotRecord>(content, kSpotOrder);
}
Result<MusicRecord> ParseMusic(std::string_view content) {
  return Parse<MusicRecord>(content, kMusicOrder);
}
Result<LinerRecord> ParseLiner(std::string_view content) {
  return Parse<LinerRecord>(content, kLinerOrder);
}

MusicRecord MusicFieldsOf(std::string_view content) {
  MusicRecord record;
  ReadForm form(content);
  for (const auto field : kMusicOrder) record.*field = form.Next().value_or({});
  return record;
}

std::string FormatRecord(const SpotRecord& record) {
  return Format(record, kSpotOrder);
}
std::string FormatRecord(const MusicRecord& record) {
  return Format(record, kMusicOrder);
}
std::string FormatRecord(const LinerRecord& record) {
  return Format(record, kLinerOrder);
}

Result<SpotRecord> ReadSpotRecord(Files& files, std::string_view id) {
  return ReadRecord(files, id, ParseSpot);
}
Result<MusicRecord> ReadMusicRecord(Files& files, std::string_view id) {
  return ReadRecord(files, id, ParseMusic);
}
Result<LinerRecord> ReadLinerRecord(Files& files, std::string_view id) {
  return ReadRecord(files, id, ParseLiner);
}

Result<std::vector<std::string>> ReadRecordFields(Files& files, std::string_view id, std::size_t count) {
  const Result<std::string> content = files.Read(station_paths::DataFile(id));
  if (!content.ok()) return content.error();
  std::vector<std::string> fields = ReadValues(content.value(), count);
  if (fields.size() < count) return RunTimeError::kInputPastEnd;
  return fields;
}

std::string FormatFields(const std::vector<std::string>& fields) {
  WriteForm form;
  for (const std::string& field : fields) form.Text(field);
  return form.bytes();
}

std::vector<std::string> ReadLeadingFields(Files& files, std::string_view id, std::size_t count) {
  const std::string content = files.Read(station_paths::DataFile(id)).value_or({});
  std::vector<std::string> fields = ReadValues(content, count);
  fields.resize(count);
  return fields;
}

Status WriteRecord(Files& files, const SpotRecord& record) {
  return files.Write(station_paths::DataFile(record.RecordingId), FormatRecord(record), Durability::kFlushed);
}
Status WriteRecord(Files& files, const MusicRecord& record) {
  return files.Write(station_paths::DataFile(record.RecordingId), FormatRecord(record), Durability::kFlushed);
}
Status WriteRecord(Files& files, const LinerRecord& record) {
  return files.Write(station_paths::DataFile(record.RecordingId), FormatRecord(record), Durability::kFlushed);
}

Status RewriteAudioFields(Files& files, std::string_view id, std::string_view length,
                          std::string_view drive) {
  const std::string path = station_paths::DataFile(id);
  const Result<std::string> content = files.Read(path);
  if (!content.ok()) return content.error();
  const std::size_t count = FieldCount(id);
  std::vector<std::string> fields = ReadValues(content.value(), count);
  if (count == 0 || fields.size() < count) return RunTimeError::kInputPastEnd;
  fields[0] = length;
  fields[2] = drive;
  WriteForm form;
  for (const std::string& field : fields) form.Text(field);
  return files.Write(path, form.bytes(), Durability::kFlushed);
}

std::vector<std::string> ListRecordings(Files& files, std::string_view pattern) {
  std::vector<std::string> ids = files.List(station_paths::kDataFolder, pattern).value_or({});
  for (std::string& id : ids) id.resize(id.size() - std::min(id.size(), kDataExtension));
  return ids;
}

std::string KillDateFromEntry(std::string_view month, std::string_view day, std::string_view year) {
  std::string date;
  date.append(month).append("-").append(day).append("-").append(year);
  return date == "--" ? std::string() : date;
}

Status WriteHandOverRecord(Files& files, std::string_view record_bytes) {
  return files.Write(station_paths::kHandOver, record_bytes);
}

Result<std::string> ReadHandOverRecord(Files& files) {
  return files.Read(station_paths::kHandOver);
}

Status WriteLastRecording(Files& files, std::string_view id) {
  return files.Write(station_paths::kLastRecording, WriteForm().Text(id).bytes());
}

Result<std::string> ReadLastRecording(Files& files) {
  const Result<std::string> content = files.Read(station_paths::kLastRecording);
  if (!content.ok()) return content.error();
  return ReadForm(content.value()).Next();
}

Status WriteImportRequest(Files& files, const ImportRequest& request) {
  const char* code = request.kind == RecordingKind::kSpot    ? "1"
                     : request.kind == RecordingKind::kMusic ? "2"
                                                             : "3";
  return files.Write(station_paths::kImportRequest,
                     WriteForm().Text(request.RecordingId).Text(request.Drive).Text(code).bytes());
}

Result<ImportRequest> ReadImportRequest(Files& files) {
  const Result<std::string> content = files.Read(station_paths::kImportRequest);
  if (!content.ok()) return content.error();
  std::vector<std::string> values = ReadValues(content.value(), 3);
  if (values.size() < 3) return RunTimeError::kInputPastEnd;
  const RecordingKind kind = values[2] == "1"   ? RecordingKind::kSpot
                             : values[2] == "2" ? RecordingKind::kMusic
                                                : RecordingKind::kLiner;
  return ImportRequest{std::move(values[0]), std::move(values[1]), kind};
}

}  // namespace quixair
