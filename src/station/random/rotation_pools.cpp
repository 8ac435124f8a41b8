#include "station/random/rotation_pools.h"

#include <algorithm>

#include "station/console/station_paths.h"
#include "station/library/recording_file.h"

namespace quixair {
namespace {

int FurtherMatches(Files& files, std::string_view pattern) {
  const std::size_t matches = files.List(station_paths::kDataFolder, pattern).value_or({}).size();
  return static_cast<int>(std::max<std::size_t>(matches, 1) - 1);
}

/// A torn file does not tell its id; its name does.
std::string IdOr(std::string field, std::string_view file_id) {
  return field.empty() ? std::string(file_id) : std::move(field);
}

}  // namespace

int GetFileMuscount(Files& files) {
  return FurtherMatches(files, "M*.DAT");
}
int GetFileLinerCount(Files& files) {
  return FurtherMatches(files, "L*.DAT");
}
int GetFilelegalcount(Files& files) {
  return FurtherMatches(files, "LL*.DAT");
}

PoolRow ReadSong(Files& files, std::string_view id) {
  std::vector<std::string> fields = ReadLeadingFields(files, id, kMusicFields);
  return {.RecordingId = IdOr(std::move(fields[1]), id),
          .Drive = std::move(fields[2]),
          .first_text = std::move(fields[3]),
          .Title = std::move(fields[4]),
          .Length = std::move(fields[0]),
          .Product = {}};
}

PoolRow ReadLiner(Files& files, std::string_view id) {
  std::vector<std::string> fields = ReadLeadingFields(files, id, kLinerFields);
  return {.RecordingId = IdOr(std::move(fields[1]), id),
          .Drive = std::move(fields[2]),
          .first_text = {},
          .Title = std::move(fields[3]),
          .Length = std::move(fields[0]),
          .Product = {}};
}

PoolRow ReadLegalId(Files& files, std::string_view id) {
  std::vector<std::string> fields = ReadLeadingFields(files, id, kLinerFields);
  return {.RecordingId = IdOr(std::move(fields[1]), id),
          .Drive = std::move(fields[2]),
          .first_text = std::move(fields[4]),
          .Title = std::move(fields[3]),
          .Length = std::move(fields[0]),
          .Product = {}};
}

PoolRow ReadRotationSpot(Files& files, std::string_view id) {
  std::vector<std::string> fields = ReadLeadingFields(files, id, 8);
  return {.RecordingId = std::string(id),
          .Drive = std::move(fields[2]),
          .first_text = std::move(fields[3]),
          .Title = std::move(fields[4]),
          .Length = std::move(fields[0]),
          .Product = std::move(fields[7])};
}

}  // namespace quixair
