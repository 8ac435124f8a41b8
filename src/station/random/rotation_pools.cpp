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

Recording ReadSkipping(Files& files, Recording recording) {
  SkipAndGoOn(recording.Read(files));
  return recording;
}

/// What all kinds tell.
PoolRow RowOf(const Recording& recording) {
  // A torn file does not tell its id; its name does.
  const std::string& told = recording.value(Field::kRecordingId);
  return {.RecordingId = told.empty() ? recording.id() : told,
          .Drive = recording.value(Field::kDrive),
          .first_text = {},
          .Title = recording.value(Field::kTitle),
          .Length = recording.value(Field::kLength),
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
  const Recording song = ReadSkipping(files, Recording(id, RecordingKind::kMusic));
  PoolRow row = RowOf(song);
  row.first_text = song.value(Field::kArtist);
  return row;
}

PoolRow ReadLiner(Files& files, std::string_view id) {
  return RowOf(ReadSkipping(files, Recording(id, RecordingKind::kLiner)));
}

PoolRow ReadLegalId(Files& files, std::string_view id) {
  const Recording liner = ReadSkipping(files, Recording(id, RecordingKind::kLiner));
  PoolRow row = RowOf(liner);
  row.first_text = liner.value(Field::kAnnouncer);
  return row;
}

PoolRow ReadRotationSpot(Files& files, std::string_view id) {
  const Recording spot = ReadSkipping(files, Recording(id, RecordingKind::kSpot));
  PoolRow row = RowOf(spot);
  row.RecordingId = id;
  row.first_text = spot.value(Field::kAccount);
  row.Product = spot.value(Field::kProduct);
  return row;
}

}  // namespace quixair
