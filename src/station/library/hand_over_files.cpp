#include "station/library/hand_over_files.h"

#include <utility>
#include <vector>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"

namespace quixair {

Status WriteHandOver(Files& files, const Recording& recording) {
  return files.Write(station_paths::kHandOver, recording.Format());
}

Recording ReadHandOver(Files& files, RecordingKind kind) {
  return Recording::Of(kind, files.Read(station_paths::kHandOver).value_or({}));
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
