// Where the tests find what lies in the source tree. Only one source knows the path, so that moving the tree compiles
// one file anew.
#pragma once

#include <filesystem>

namespace tests {

/// The files that stand beside the program.
std::filesystem::path RunFolder();
/// The pictures of the windows as text.
std::filesystem::path PicturesFolder();

}  // namespace tests
