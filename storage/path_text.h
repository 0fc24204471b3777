// Paths as texts and texts as paths, in one place: the program's texts are UTF-8, while a system may keep names in
// another form.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace storage {

/// The path that a text names.
std::filesystem::path PathOf(std::string_view text);

/// A path as the system writes it. Empty for a name that is no text in any code; no file of the program has such a one.
std::string TextOf(const std::filesystem::path& path);

}  // namespace storage
