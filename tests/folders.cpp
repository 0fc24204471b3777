#include "folders.h"

namespace tests {

std::filesystem::path RunFolder() { return ORVANBEG_SOURCE_FOLDER "/run"; }
std::filesystem::path PicturesFolder() { return ORVANBEG_SOURCE_FOLDER "/tests/pictures"; }

}  // namespace tests
