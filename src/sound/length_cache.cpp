#include "sound/length_cache.h"

#include <system_error>

namespace quixair::sound {

FileFacts LengthCache::Facts(const std::filesystem::path& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return {};
  const auto changed = std::filesystem::last_write_time(path, error);
  if (error) return {};
  {
    const std::lock_guard lock(mutex_);
    const auto found = entries_.find(path.native());
    if (found != entries_.end() && found->second.size == size && found->second.changed == changed) {
      return found->second.facts;
    }
  }
  const FileFacts facts = ExamineFile(path);
  const std::lock_guard lock(mutex_);
  entries_[path.native()] = {size, changed, facts};
  return facts;
}

}  // namespace quixair::sound
