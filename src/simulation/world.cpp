#include "simulation/world.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

#include "simulation/silent_wave.h"
#include "station/platform/text.h"

namespace quixair::simulation {
namespace {

namespace fs = std::filesystem;

constexpr const char* kAway = ".away";

/// The name as it is there, in whatever case, else as it is asked for.
fs::path Entry(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  if (fs::exists(folder / name, ignored)) return folder / name;
  for (const auto& entry : fs::directory_iterator(folder, ignored)) {
    if (EqualsIgnoringCase(FromUtf8(entry.path().filename().string()), FromUtf8(name))) return entry.path();
  }
  return folder / name;
}

Status Told(bool done) {
  return done ? Status() : Status(RunTimeError::kPathFileAccess);
}

}  // namespace

Drives EmptyDrives(const fs::path& folder) {
  Drives drives;
  for (const char letter : {'C', 'D'}) {
    fs::create_directories(folder / std::string(1, letter));
    drives.Set(letter, folder / std::string(1, letter));
  }
  return drives;
}

Result<fs::path> World::Place(std::string_view path) const {
  const auto drive = path.size() < 2 || path[1] != ':' ? std::nullopt : station_.drives().Directory(path[0]);
  if (!drive) return RunTimeError::kDiskNotReady;
  fs::path place = *drive;
  for (std::string_view rest = path.substr(2); !rest.empty();) {
    const std::size_t end = std::min(rest.find('\\'), rest.size());
    if (end > 0) place = Entry(place, ToUtf8(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return place;
}

Result<fs::path> World::Existing(std::string_view path) const {
  Result<fs::path> place = Place(path);
  if (!place.ok()) return place;
  std::error_code ignored;
  if (!fs::exists(place.value(), ignored)) return RunTimeError::kFileNotFound;
  return place;
}

Result<fs::path> World::PlaceToWrite(std::string_view path) const {
  Result<fs::path> place = Place(path);
  if (!place.ok()) return place;
  std::error_code error;
  fs::create_directories(place.value().parent_path(), error);
  if (error) return RunTimeError::kPathFileAccess;
  return place;
}

Status World::Put(std::string_view path, std::string_view bytes) {
  const Result<fs::path> place = PlaceToWrite(path);
  if (!place.ok()) return place.status();
  std::ofstream file(place.value(), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return Told(file.good());
}

Status World::PutAudio(std::string_view path, std::chrono::milliseconds length) {
  const Result<fs::path> place = PlaceToWrite(path);
  if (!place.ok()) return place.status();
  return Told(WriteSilentWave(place.value(), static_cast<std::int32_t>(length.count())));
}

Status World::Tear(std::string_view path, std::uintmax_t bytes_left) {
  const Result<fs::path> place = Existing(path);
  if (!place.ok()) return place.status();
  std::error_code error;
  const std::uintmax_t size = fs::file_size(place.value(), error);
  if (!error && size > bytes_left) fs::resize_file(place.value(), bytes_left, error);
  return Told(!error);
}

Status World::Remove(std::string_view path) {
  const Result<fs::path> place = Existing(path);
  if (!place.ok()) return place.status();
  std::error_code error;
  fs::remove_all(place.value(), error);
  return Told(!error);
}

Status World::TakeAway(std::string_view path) {
  const Result<fs::path> place = Existing(path);
  if (!place.ok()) return place.status();
  fs::path hidden = place.value();
  hidden += kAway;
  std::error_code error;
  fs::rename(place.value(), hidden, error);
  if (!error) away_[place.value()] = hidden;
  return Told(!error);
}

Status World::BringBack(std::string_view path) {
  const Result<fs::path> place = Place(path);
  if (!place.ok()) return place.status();
  const fs::path hidden = Entry(place.value().parent_path(), place.value().filename().string() + kAway);
  fs::path there = hidden;
  std::error_code error;
  fs::rename(hidden, there.replace_extension(), error);
  away_.erase(there);
  return error ? Status(RunTimeError::kFileNotFound) : Status();
}

void World::LoseOutput() {
  station_.media().output_trouble = "There is no sound output.";
}

void World::LoseInput() {
  station_.capture().input_there = false;
  station_.capture().BreakOff();
}

void World::Mend() {
  station_.files().Mend();
  station_.media().output_trouble.clear();
  station_.capture().input_there = true;
  std::error_code ignored;  // what was made anew meanwhile stays
  // A folder before what was taken from it.
  for (const auto& [from, to] : away_) {
    if (!fs::exists(from, ignored)) fs::rename(to, from, ignored);
  }
  away_.clear();
}

}  // namespace quixair::simulation
