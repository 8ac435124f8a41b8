#include "station/library/hand_over_files.h"

#include <utility>
#include <vector>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"

namespace quixair {
namespace {

struct KindCode {
  RecordingKind kind;
  std::string_view code;
};
constexpr KindCode kKindCodes[] = {
    {RecordingKind::kSpot, "1"}, {RecordingKind::kMusic, "2"}, {RecordingKind::kLiner, "3"}};

}  // namespace

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
  std::string_view code;
  for (const auto& [kind, known] : kKindCodes) {
    if (kind == request.kind) code = known;
  }
  return files.Write(station_paths::kImportRequest,
                     WriteForm().Text(request.RecordingId).Text(request.Drive).Text(code).bytes());
}

Result<ImportRequest> ReadImportRequest(Files& files) {
  const Result<std::string> content = files.Read(station_paths::kImportRequest);
  if (!content.ok()) return content.error();
  std::vector<std::string> values = ReadValues(content.value(), 3);
  if (values.size() < 3) return RunTimeError::kInputPastEnd;
  ImportRequest request{std::move(values[0]), std::move(values[1]), std::nullopt};
  for (const auto& [kind, code] : kKindCodes) {
    if (code == values[2]) request.kind = kind;
  }
  return request;
}

}  // namespace quixair
