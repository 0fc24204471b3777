#include "view_file.h"

#include <fstream>
#include <string>

#include "safe_file.h"
#include "text_lines.h"

namespace storage {

int ReadViewSize(const std::filesystem::path& file) {
  constexpr int kNatural = 100, kMost = 1000;
  std::ifstream in = OpenRegularFile(file);
  int size = 0;
  return in >> size && size > 0 && size <= kMost ? size : kNatural;
}

bool WriteViewSize(const std::filesystem::path& file, int size) {
  std::error_code unknown;
  std::filesystem::create_directories(file.parent_path(), unknown);
  return static_cast<bool>(WriteWhole(file, std::to_string(size) + "\r\n"));
}

}  // namespace storage
