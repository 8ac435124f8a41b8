#pragma once

// A folder of its own below the system's temporary one, removed at the end: where a copy of a station, or one made on the
// spot, lives.

#include <filesystem>

namespace quixair::simulation {

class TemporaryFolder {
 public:
  /// Throws std::filesystem::filesystem_error when none can be made.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace quixair::simulation
