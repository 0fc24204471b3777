// The size of the windows, kept between evenings in a file of its own: its number, in 100, and nothing else.
#pragma once

#include <filesystem>

namespace storage {

/// 100 if the file is missing or holds no size from 1 to 1000.
int ReadViewSize(const std::filesystem::path& file);

/// False if the file could not be written.
bool WriteViewSize(const std::filesystem::path& file, int size);

}  // namespace storage
