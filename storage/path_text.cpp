#include "path_text.h"

#include <system_error>

namespace storage {

std::filesystem::path PathOf(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string TextOf(const std::filesystem::path& path) {
  try {
    const std::u8string text = std::filesystem::path(path).make_preferred().u8string();
    return {text.begin(), text.end()};
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace storage
