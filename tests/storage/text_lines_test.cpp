// Bytes of a file to text and back, and where a line ends.
#include <gmock/gmock.h>

#include <sstream>

#include "../../storage/code_page.h"
#include "../../storage/text_lines.h"

namespace {

TEST(CodePageTest, CharactersHaveTheBytesOfWindows1252AndAllBytesSurvive) {
  const std::tuple<const char*, std::string, std::string, std::string> cases[] = {
      {"€ Š ™š ž Ÿ „“ ß", "\x80 \x8A \x99\x9A \x9E \x9F \x84\x93 \xDF", "€ Š ™š ž Ÿ „“ ß", ""},
      {"Győr → 😀", "Gy?r ? ?", "Gyor  ", "→"},
      {"Łukasz e\u0301ń\u1EA5", "?ukasz e???", "Lukasz ena", ""},
      {"Anna\r\nB", "Anna\r\nB", "AnnaB", ""},
      {"\xE2\x82", "??", "", "\xE2"},
      {"\xC3(x", "?(x", "(x", "\xC3"}};
  for (const auto& [text, bytes, storable, first] : cases) {
    std::string refused;
    EXPECT_EQ(storage::ToCodePage(text), bytes);
    EXPECT_EQ(storage::Storable(text, &refused), storable);
    EXPECT_EQ(refused, first);
  }
  for (int code = -1; code <= 256; ++code) {
    const std::string byte(code >= 0 && code <= 255 ? 1 : 0, static_cast<char>(code));
    EXPECT_EQ(storage::ToCodePage(storage::CharacterOf(code)), byte) << code;
  }
}

TEST(LineReaderTest, LinesEndWhereTheKindOfFileSays) {
  using enum storage::LineFeeds;
  const std::string piece(16'383, 'x');  // with its carriage return as long as what is read at once
  const std::tuple<std::string, storage::LineFeeds, std::vector<std::string>> cases[] = {
      {"", EndLines, {}},
      {"a\r\n\r\nb\r\n", EndLines, {"a", "", "b"}},
      {"a\rb\nunfinished", EndLines, {"a", "b", "unfinished"}},
      {"a\n\rb", EndLines, {"a", "", "b"}},
      {"a\nb\r\nc\rW\xFCrfe\r\n", PartOfLine, {"a\nb", "c", "Würfe"}},
      {piece + "\r\n" + piece + "y\r\n\n" + piece + piece + "\r",
       PartOfLine,
       {piece, piece + "y", "\n" + piece + piece}}};
  for (const auto& [bytes, mode, expected] : cases) {
    std::istringstream file(bytes);
    storage::LineReader reader(file, mode);
    std::vector<std::string> lines;
    for (std::string line; reader.Next(line);) lines.push_back(line);
    EXPECT_EQ(lines, expected) << bytes;
  }
}

}  // namespace
