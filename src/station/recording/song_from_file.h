#pragma once

// What the fast importer makes of a file's name: the fields of a song, and a free id.

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "station/platform/files.h"

namespace quixair {

enum class IdConvention { kAlphabetic, kNumeric };

/// The highest number of a series: 999 or 9999.
int LastInSeries(IdConvention convention);

struct NameFields {
  std::string artist, title;
};
/// The first twenty characters and the next twenty; the extension counts as any other text.
NameFields FieldsFromName(std::string_view file_name);

/// Finds the ids of one run. It remembers how far each series is, so that many files of one beginning do not
/// count from 1 each.
class SongIds {
 public:
  SongIds(Files& files, IdConvention convention) : files_(files), convention_(convention) {}
  /// "M", the beginning of the name where the convention is so, and the first number without a data file;
  /// none past the end of the series. The same again until a data file is made of it.
  std::optional<std::string> FreeId(std::string_view file_name);

 private:
  Files& files_;
  IdConvention convention_;
  std::map<std::string, int> next_;  // by the upper-cased beginning
};

}  // namespace quixair
