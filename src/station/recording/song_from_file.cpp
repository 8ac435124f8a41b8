#include "station/recording/song_from_file.h"

#include <algorithm>

#include "station/console/station_paths.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::size_t kFieldLength = 20;
constexpr std::size_t kLetters = 3;

}  // namespace

int LastInSeries(IdConvention convention) {
  return convention == IdConvention::kAlphabetic ? 999 : 9999;
}

NameFields FieldsFromName(std::string_view file_name) {
  const std::size_t cut = std::min(file_name.size(), kFieldLength);
  return {.artist = std::string(file_name.substr(0, cut)),
          .title = std::string(file_name.substr(cut, kFieldLength))};
}

std::optional<std::string> SongIds::FreeId(std::string_view file_name) {
  std::string beginning = "M";
  if (convention_ == IdConvention::kAlphabetic) beginning += file_name.substr(0, kLetters);
  int& number = next_.try_emplace(UpperCased(beginning), 1).first->second;
  for (; number <= LastInSeries(convention_); ++number) {
    std::string id = beginning + std::to_string(number);
    if (!files_.Exists(station_paths::DataFile(id))) return id;
  }
  return std::nullopt;
}

}  // namespace quixair
