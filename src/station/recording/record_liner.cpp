#include "station/recording/record_liner.h"

#include "station/console/station_paths.h"
#include "station/platform/files.h"

namespace quixair {

void RecordLiner::DeleteOldAudio(const std::string& letter, const std::string& id) {
  const Status deleted = platform_.files.Delete(station_paths::AudioFile(letter, id, ".WAV"));
  if (deleted.error() == RunTimeError::kFileNotFound) Text1.SetText("The .WAV file does not exist");
}

}  // namespace quixair
