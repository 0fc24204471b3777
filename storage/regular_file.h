// Opens files for reading that a user may have named wrongly: a folder, a device or a pipe would answer with errors,
// without an end, or never.
#pragma once

#include <filesystem>
#include <fstream>

namespace storage {

/// A stream of the file's bytes; not open if there is no such file or something else bears the name. Called by all that
/// read files.
std::ifstream OpenRegularFile(const std::filesystem::path& file);

}  // namespace storage
