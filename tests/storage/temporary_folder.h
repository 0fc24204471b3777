// A folder of its own for each test that writes, and what it takes to look into it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>

#include "../../storage/path_text.h"

namespace tests {

class TemporaryFolder : public testing::Test {
 protected:
  TemporaryFolder() { create_directory(Folder); }
  ~TemporaryFolder() override {
    std::filesystem::current_path(Folder.parent_path());  // the program may have gone into it
    std::filesystem::remove_all(Folder);
  }

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
    for (const auto& entry : std::filesystem::directory_iterator(Folder / below)) {
      names.insert(storage::TextOf(entry.path().filename()));
    }
    return names;
  }

  const std::filesystem::path Folder =  // with letters of two code pages
      std::filesystem::temp_directory_path() /
      storage::PathOf("orvanbeg-Łüя-" + std::to_string(std::random_device()()));
};

}  // namespace tests
