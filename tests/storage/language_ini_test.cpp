// The language file that is shipped: its form, and its access keys.
#include <gmock/gmock.h>

#include <fstream>
#include <set>

#include "../../storage/language_file.h"

namespace tests {
namespace {

class LanguageIniTest : public testing::Test {
 protected:
  static std::ifstream Open() { return std::ifstream(ORVANBEG_RUN_FOLDER "/language.ini", std::ios::binary); }
  LanguageIniTest() {
    auto file = Open();
    count = storage::ListLanguages(file, language);
  }
  int LoadBlock(int index) {
    auto file = Open();
    language.Languages[0] = language.Languages.at(static_cast<std::size_t>(index));
    return storage::LoadTexts(file, language);
  }
  /// The letter behind a single ampersand, or 0.
  static char AccessKey(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
      if (caption[i] != '&') continue;
      if (caption[i + 1] != '&') return static_cast<char>(std::toupper(static_cast<unsigned char>(caption[i + 1])));
      ++i;
    }
    return 0;
  }

  core::Language language;
  int count = 0;
};

TEST_F(LanguageIniTest, IsWindows1252InBlocksOf118Texts) {
  auto file = Open();
  std::vector<int> blocks;  // lines of each
  for (std::string line; std::getline(file, line);) {
    EXPECT_THAT(line, testing::EndsWith("\r"));
    EXPECT_EQ(line.find("\xC3"), std::string::npos) << "looks like UTF-8: " << line;
    if (line == "#LANGUAGE\r") blocks.push_back(0);
    if (!blocks.empty()) ++blocks.back();
  }
  EXPECT_GE(count, 2);
  EXPECT_EQ(blocks, std::vector<int>(static_cast<std::size_t>(count), 120));
}

TEST_F(LanguageIniTest, AccessKeysAreUniqueWithinEachMenu) {
  const std::vector<std::size_t> menus[] = {
      {1, 8, 13}, {2, 3, 4, 5, 6, 7}, {9, 10, 11, 111, 12, 118}, {9, 10, 11, 112, 12, 118}, {14, 15}};
  for (int block = 1; block <= count; ++block) {
    ASSERT_EQ(LoadBlock(block), 118);
    for (const auto& menu : menus) {
      std::set<char> keys;
      for (const std::size_t text : menu) {
        SCOPED_TRACE(language.Languages[0] + ": " + language.Text[text]);
        const char key = AccessKey(language.Text[text]);
        EXPECT_NE(key, 0);
        EXPECT_TRUE(keys.insert(key).second);
      }
    }
  }
}

}  // namespace
}  // namespace tests
