#pragma once

// What the screens that record and import hand over to each other in files: the record that goes to a capture
// screen (TEMP.DAT), the id that last went there (TEMPSPOT.DAT), and what an entry screen asks the import screen
// for (IMPORT.DAT).

#include <optional>
#include <string>
#include <string_view>

#include "station/library/recording.h"

namespace quixair {

Status WriteHandOver(Files& files, const Recording& recording);
/// Lines that are missing are empty, all of them when there is no file.
Recording ReadHandOver(Files& files, RecordingKind kind);

Status WriteLastRecording(Files& files, std::string_view id);
/// 53 when nothing was sent to capture yet.
Result<std::string> ReadLastRecording(Files& files);

struct ImportRequest {
  std::string RecordingId;
  std::string Drive;
  std::optional<RecordingKind> kind;  // of the entry screen that asks; none of a code that is not known
  bool operator==(const ImportRequest&) const = default;
};
Status WriteImportRequest(Files& files, const ImportRequest& request);
/// 53 when no entry screen asks, 62 when a line is missing.
Result<ImportRequest> ReadImportRequest(Files& files);

}  // namespace quixair
