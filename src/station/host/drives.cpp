#include "station/host/drives.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::string_view kFirstTable =
    "# Which directory each drive of the station is. C holds the station's own folders;\n"
    "# further drives hold audio in their folder QXWAVE.\n"
    "C = ~/Quixair\n";

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::filesystem::path WithHome(std::string_view directory, const std::filesystem::path& home) {
  if (directory == "~") return home;
  if (directory.starts_with("~/")) return home / std::string(directory.substr(2));
  return std::string(directory);
}

}  // namespace

void Drives::Set(char letter, std::filesystem::path directory) {
  table_[UpperCased(letter)] = std::move(directory);
}

std::optional<std::filesystem::path> Drives::Directory(char letter) const {
  const auto found = table_.find(UpperCased(letter));
  if (found == table_.end()) return std::nullopt;
  return found->second;
}

Drives Drives::Parse(std::string_view content, const std::filesystem::path& home) {
  Drives drives;
  while (!content.empty()) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    line = WithoutBlanks(line.substr(0, line.find('#')));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    std::string_view letter = WithoutBlanks(line.substr(0, equals));
    const std::string_view directory = WithoutBlanks(line.substr(equals + 1));
    if (letter.size() == 2 && letter[1] == ':') letter.remove_suffix(1);
    if (letter.size() != 1 || UpperCased(letter[0]) < 'A' || UpperCased(letter[0]) > 'Z' || directory.empty())
      continue;
    drives.Set(letter[0], WithHome(directory, home));
  }
  return drives;
}

Drives Drives::Load(const std::filesystem::path& file, const std::filesystem::path& home) {
  std::error_code
      ignored;  // a table that cannot be made leaves a station without drives, which its first write tells
  if (!std::filesystem::exists(file, ignored)) {
    std::filesystem::create_directories(file.parent_path(), ignored);
    std::ofstream(file) << kFirstTable;
    std::filesystem::create_directories(home / "Quixair", ignored);
  }
  std::ifstream stream(file, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(stream), {}};
  return Parse(content, home);
}

std::filesystem::path HomeFolder() {
  const char* home = std::getenv("HOME");
  return home != nullptr && *home != 0 ? std::filesystem::path(home) : std::filesystem::path("/");
}

std::filesystem::path ConfigurationFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured != nullptr && *configured == '/') return std::filesystem::path(configured) / "quixair";
  return HomeFolder() / ".config" / "quixair";
}

}  // namespace quixair
