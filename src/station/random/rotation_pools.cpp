#include "station/random/rotation_pools.h"

#include <algorithm>

#include "station/console/station_paths.h"
#include "station/library/recording.h"

namespace quixair {
namespace {

int FurtherMatches(Files& files, std::string_view pattern) {
  const std::size_t matches = files.List(station_paths::kDataFolder, pattern).value_or({}).size();
  return static_cast<int>(std::max<std::size_t>(matches, 1) - 1);
}

Recording ReadSkipping(Files& files, std::string_view id, RecordingKind kind) {
  Recording recording(id, kind);
  SkipAndGoOn(recording.Read(files));
  return recording;
}

/// What all kinds tell. A torn file does not tell its id; its name does.
PoolRow TakeRow(Recording& recording) {
  std::string id = recording.Take(Field::kRecordingId);
  if (id.empty()) id = recording.id();
  return {.RecordingId = std::move(id),
          .Drive = recording.Take(Field::kDrive),
          .first_text = {},
          .Title = recording.Take(Field::kTitle),
          .Length = recording.Take(Field::kLength),
          .Product = {}};
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
  Recording song = ReadSkipping(files, id, RecordingKind::kMusic);
  PoolRow row = TakeRow(song);
  row.first_text = song.Take(Field::kArtist);
  return row;
}

PoolRow ReadLiner(Files& files, std::string_view id) {
  Recording liner = ReadSkipping(files, id, RecordingKind::kLiner);
  return TakeRow(liner);
}

PoolRow ReadLegalId(Files& files, std::string_view id) {
  Recording liner = ReadSkipping(files, id, RecordingKind::kLiner);
  PoolRow row = TakeRow(liner);
  row.first_text = liner.Take(Field::kAnnouncer);
  return row;
}

PoolRow ReadRotationSpot(Files& files, std::string_view id) {
  Recording spot = ReadSkipping(files, id, RecordingKind::kSpot);
  PoolRow row = TakeRow(spot);
  row.RecordingId = id;
  row.first_text = spot.Take(Field::kAccount);
  row.Product = spot.Take(Field::kProduct);
  return row;
}

}  // namespace quixair
