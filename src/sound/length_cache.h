#pragma once

// What was found out about files in this session, so that opening a song a second time does not look through
// it again. A file counts as the same while its path, size and time of change are. Owned by whoever opens
// many files (SoundSystem, a front end in virtual time); may be used from several threads.

#include <cstdint>
#include <filesystem>
#include <mutex>
#include <optional>
#include <unordered_map>

#include "sound/decoder.h"

namespace quixair::sound {

class LengthCache {
 public:
  /// Examines the file unless it is known; what is missing is unplayable and not remembered.
  FileFacts Facts(const std::filesystem::path& path);
  /// Facts of it would come at once: it was examined as it is now, or is missing.
  bool Knows(const std::filesystem::path& path);
  /// Milliseconds, 0 when unplayable.
  std::int32_t LengthMs(const std::filesystem::path& path) { return Facts(path).length_ms; }

 private:
  struct Entry {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type changed;
    FileFacts facts;
  };

  /// How the file stands, without facts; none when it is missing.
  static std::optional<Entry> Stand(const std::filesystem::path& path);
  std::optional<FileFacts> Known(const std::filesystem::path& path, const Entry& stand);

  std::mutex mutex_;
  std::unordered_map<std::string, Entry> entries_;
};

}  // namespace quixair::sound
