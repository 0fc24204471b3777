#include "regular_file.h"

namespace storage {

std::ifstream OpenRegularFile(const std::filesystem::path& file) {
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(file, unknown)) return {};
  return std::ifstream(file, std::ios::binary);
}

}  // namespace storage
