#include "simulation/temporary_folder.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace quixair::simulation {

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "quixair-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::filesystem::filesystem_error("no temporary folder", pattern,
                                            std::error_code(errno, std::generic_category()));
  }
  path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace quixair::simulation
