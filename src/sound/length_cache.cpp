#include "sound/length_cache.h"

#include <system_error>

namespace quixair::sound {

FileFacts LengthCache::Facts(const std::filesystem::path& path) {
  std::optional<Entry> stand = Stand(path);
  if (!stand) return {};
  if (const auto known = Known(path, *stand)) return *known;
  stand->facts = ExamineFile(path);
  const std::lock_guard lock(mutex_);
  entries_[path.native()] = *stand;
  return stand->facts;
}

bool LengthCache::Knows(const std::filesystem::path& path) {
  const std::optional<Entry> stand = Stand(path);
  return !stand || Known(path, *stand);
}

std::optional<LengthCache::Entry> LengthCache::Stand(const std::filesystem::path& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return std::nullopt;
  const auto changed = std::filesystem::last_write_time(path, error);
  if (error) return std::nullopt;
  return Entry{.size = size, .changed = changed, .facts = {}};
}

std::optional<FileFacts> LengthCache::Known(const std::filesystem::path& path, const Entry& stand) {
  const std::lock_guard lock(mutex_);
  const auto found = entries_.find(path.native());
  if (found == entries_.end() || found->second.size != stand.size || found->second.changed != stand.changed) {
    return std::nullopt;
  }
  return found->second.facts;
}

}  // namespace quixair::sound
