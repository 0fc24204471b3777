#include "folders.h"

namespace tests {
namespace {

/// With its drive, where a system has some, since the program leaves the folder that it was started in.
const std::filesystem::path kSource = std::filesystem::absolute(ORVANBEG_SOURCE_FOLDER);

}  // namespace

std::filesystem::path RunFolder() { return kSource / "run"; }
std::filesystem::path PicturesFolder() { return kSource / "tests/pictures"; }

}  // namespace tests
