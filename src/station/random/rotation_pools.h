#pragma once

// What Random playback draws from: the station's songs, liners and legal ids and its rotation of spots, read
// once when the screen loads. Rows count from 1, as the random draw does; a recording made later is heard
// after the next load.

#include <string>
#include <string_view>
#include <vector>

namespace quixair {

class Files;

/// A recording as far as playing it needs.
struct PoolRow {
  std::string RecordingId;
  std::string Drive;
  std::string first_text;  // artist of a song, account of a spot; empty for a liner
  std::string Title;
  std::string Length;
  std::string Product;  // of a spot
};

class Pool {
 public:
  int count() const { return static_cast<int>(rows_.size()); }
  /// Rows from 1 to count().
  const PoolRow& row(int number) const { return rows_.at(static_cast<std::size_t>(number - 1)); }
  void Add(PoolRow row) { rows_.push_back(std::move(row)); }
  void Clear() { rows_.clear(); }
  void Reserve(int rows) { rows_.reserve(static_cast<std::size_t>(rows)); }

 private:
  std::vector<PoolRow> rows_;
};

struct RotationPools {
  Pool music;
  Pool liners;
  Pool legal_ids;
  Pool spots;
};

// The counts of matching data files. They look a first time and then count the further answers, so they yield
// the number of files less one, and 0 for none; the caller adds 1. No file at all and one file thus both
// count 1, which is what the load's tests for too small a library are made for.
int GetFileMuscount(Files& files);
int GetFileLinerCount(Files& files);
int GetFilelegalcount(Files& files);

// Rows of data files, read under the rule that a failed read is skipped: what a torn file does not tell stays
// empty.
PoolRow ReadSong(Files& files, std::string_view id);
PoolRow ReadLiner(Files& files, std::string_view id);
/// A legal id shows its announcer code where a song shows its artist.
PoolRow ReadLegalId(Files& files, std::string_view id);
/// A missing data file leaves the row with its id alone.
PoolRow ReadRotationSpot(Files& files, std::string_view id);

}  // namespace quixair
