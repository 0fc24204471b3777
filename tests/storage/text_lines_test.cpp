// Bytes of a file to text and back, and where a line ends.
#include <gmock/gmock.h>

#include <sstream>

#include "../../storage/code_page.h"
#include "../../storage/line_reader.h"

namespace tests {
namespace {

TEST(CodePageTest, AllBytesSurvive) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const std::string text = storage::FromCodePage(bytes);
  EXPECT_EQ(storage::ToCodePage(text), bytes);
}

TEST(CodePageTest, CharactersHaveTheBytesOfWindows1252) {
  struct Case {
    const char *Text, *Bytes, *Storable;
  };
  const Case cases[] = {{"Gr\u00F6\u00DFe",
                         "Gr\xF6\xDF"
                         "e",
                         "Gr\u00F6\u00DFe"},
                        {"€ Š ž Ÿ „“", "\x80 \x8A \x9E \x9F \x84\x93", "€ Š ž Ÿ „“"},
                        {"Győr → 😀", "Gy?r ? ?", "Gyr  "},
                        {"Anna\r\nB", "Anna\r\nB", "AnnaB"},
                        {"\xE2\x82", "??", ""},
                        {"\xC3(x", "?(x", "(x"}};
  for (const Case& c : cases) {
    EXPECT_EQ(storage::ToCodePage(c.Text), c.Bytes);
    EXPECT_EQ(storage::Storable(c.Text), c.Storable);
  }
  EXPECT_EQ(storage::CharacterOf(0x80), "€");
  EXPECT_EQ(storage::CharacterOf(256), "");
  EXPECT_EQ(storage::CharacterOf(-1), "");
}

TEST(LineReaderTest, LinesEndWhereTheKindOfFileSays) {
  using storage::LineFeeds;
  struct Case {
    const char* Bytes;
    LineFeeds Mode;
    std::vector<std::string> Lines;
  };
  const Case cases[] = {
      {"", LineFeeds::EndLines, {}},
      {"a\r\n\r\nb\r\n", LineFeeds::EndLines, {"a", "", "b"}},
      {"a\r\nunfinished", LineFeeds::EndLines, {"a", "unfinished"}},
      {"a\nb\n", LineFeeds::EndLines, {"a", "b"}},
      {"a\rb", LineFeeds::EndLines, {"a", "b"}},
      {"a\n\rb", LineFeeds::EndLines, {"a", "", "b"}},
      {"a\nb\r\nc\rd", LineFeeds::PartOfLine, {"a\nb", "c", "d"}},
      {"W\xFCrfe\r\n", LineFeeds::PartOfLine, {"Würfe"}},
  };
  for (const Case& c : cases) {
    std::istringstream file(c.Bytes);
    storage::LineReader reader(file, c.Mode);
    std::vector<std::string> lines;
    for (std::string line; reader.Next(line);) lines.push_back(line);
    EXPECT_EQ(lines, c.Lines) << c.Bytes;
  }
}

}  // namespace
}  // namespace tests
