#include "station/platform/files.h"

namespace quixair {

bool Files::AreSame(std::string_view a, std::string_view b) {
  const auto first = HostPath(a);
  const auto second = HostPath(b);
  std::error_code ignored;
  return first && second && std::filesystem::equivalent(*first, *second, ignored);
}

}  // namespace quixair
