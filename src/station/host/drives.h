#pragma once

// Which directory of the host each drive letter means. The table is the file drives.conf in the user's
// configuration folder: a line "X = /directory" for each drive, "#" starts a comment, "~" at the start is the
// user's home.

#include <filesystem>
#include <map>
#include <optional>
#include <string_view>

namespace quixair {

class Drives {
 public:
  void Set(char letter, std::filesystem::path directory);
  /// None for a letter that is not in the table.
  std::optional<std::filesystem::path> Directory(char letter) const;
  const std::map<char, std::filesystem::path>& table() const { return table_; }

  /// Lines that are no entry are passed over.
  static Drives Parse(std::string_view content, const std::filesystem::path& home);
  /// Reads the file; a missing one is made, with drive C in the home's folder "Quixair", and that folder with
  /// it.
  static Drives Load(const std::filesystem::path& file, const std::filesystem::path& home);

 private:
  std::map<char, std::filesystem::path> table_;
};

/// The folder of the user's configuration: $XDG_CONFIG_HOME/quixair, by default ~/.config/quixair.
std::filesystem::path ConfigurationFolder();
std::filesystem::path HomeFolder();

}  // namespace quixair
