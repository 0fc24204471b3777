// A folder of its own for each test that writes, and what it takes to look into it.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace tests {

class TemporaryFolder : public testing::Test {
 protected:
  ~TemporaryFolder() override { std::filesystem::remove_all(Folder); }

  static void Put(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  static std::string Bytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// All that is in the folder or one below it.
  std::set<std::string> Names(const std::string& below = {}) const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder / below)) names.insert(entry.path().filename());
    return names;
  }

  const std::filesystem::path Folder = [] {
    std::string name = (std::filesystem::temp_directory_path() / "orvanbeg-XXXXXX").string();
    return std::filesystem::path(mkdtemp(name.data()));
  }();
};

}  // namespace tests
