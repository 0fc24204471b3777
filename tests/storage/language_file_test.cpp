// Language files as people write them, whole and damaged.
#include "../../storage/language_file.h"

#include <gmock/gmock.h>

#include <sstream>

namespace tests {
namespace {

const std::string kMark = "#LANGUAGE\r\n";

std::string Texts(const std::string& word, int count) {
  std::string lines;
  for (int i = 1; i <= count; ++i) lines += word + std::to_string(i) + "\r\n";
  return lines;
}

/// A block whose text number n is the word and n.
std::string Block(const std::string& name, const std::string& word, int count = 118) {
  return kMark + name + "\r\n" + Texts(word, count);
}

struct Reading {
  std::vector<std::string> Names;
  int Count = 0;
  core::Language Language;
};

/// Lists the languages, and loads one over old texts.
Reading Read(const std::string& bytes, const std::string& chosen) {
  Reading reading;
  reading.Language.Languages.fill("old");
  reading.Language.Languages[0] = chosen;
  reading.Language.Text.fill("old");
  std::istringstream list(bytes);
  std::istringstream texts(bytes);
  const int listed = storage::ListLanguages(list, reading.Language);
  const auto first = reading.Language.Languages.begin() + 1;
  reading.Names.assign(first, first + listed);
  EXPECT_TRUE(listed == 10 || reading.Language.Languages.back().empty());
  reading.Count = storage::LoadTexts(texts, reading.Language);
  return reading;
}

TEST(LanguageFileTest, FindsBlocksAndTheirTexts) {
  struct Case {
    const char* What;
    std::string Bytes;
    std::vector<std::string> Names;
    int Count;
    const char *First, *Last;  // texts 1 and 118
  };
  const std::string ours = Block("Ours", "a"), wanted = Block("Wanted", "b");
  const std::string likeName = kMark + "Ours\r\nWanted\r\n" + Texts("x", 118);
  const Case cases[] = {
      {"second block", ours + wanted, {"Ours", "Wanted"}, 118, "b1", "b118"},
      {"more lines", "; x\r\n\r\n" + ours + "more\r\n" + wanted, {"Ours", "Wanted"}, 118, "b1", "b118"},
      {"name before any mark", "Wanted\r\n" + Texts("x", 118) + wanted, {"Wanted"}, 118, "x1", "x118"},
      {"earlier text equals the name", likeName + wanted, {"Ours", "Wanted"}, 118, "x1", "x118"},
      {"mark in lower case", "#language\r\nOurs\r\n" + wanted, {"Wanted"}, 118, "b1", "b118"},
      {"blank behind the mark", "#LANGUAGE \r\nOurs\r\n" + wanted, {"Wanted"}, 118, "b1", "b118"},
      {"empty text", kMark + "Wanted\r\n\r\n" + Texts("b", 117), {"Wanted"}, 118, "", "b117"},
      {"short block", Block("Wanted", "b", 3) + ours, {"Wanted", "Ours"}, 3, "b1", ""},
      {"short block at the end", ours + Block("Wanted", "b", 117), {"Ours", "Wanted"}, 117, "b1", ""},
      {"no such language", ours, {"Ours"}, -1, "old", "old"},
      {"mark as the last line", ours + "#LANGUAGE", {"Ours"}, -1, "old", "old"},
      {"empty file", "", {}, -1, "old", "old"},
      {"line feeds only", "#LANGUAGE\nWanted\nx\n", {"Wanted"}, 1, "x", ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    const Reading reading = Read(c.Bytes, "Wanted");
    EXPECT_EQ(reading.Names, c.Names);
    EXPECT_EQ(reading.Count, c.Count);
    EXPECT_EQ(reading.Language.Text[1], c.First);
    EXPECT_EQ(reading.Language.Text[118], c.Last);
  }
}

TEST(LanguageFileTest, TextThatLooksLikeAMarkIsListed) {
  EXPECT_THAT(Read(kMark + "Ours\r\na\r\n#LANGUAGE\r\nb\r\n", "Ours").Names, testing::ElementsAre("Ours", "b"));
}

TEST(LanguageFileTest, EleventhBlockIsNotListed) {
  std::string bytes;
  for (int i = 1; i <= 12; ++i) bytes += Block("L" + std::to_string(i), "x", 2);
  const Reading reading = Read(bytes, "L10");
  ASSERT_EQ(reading.Names.size(), 10U);
  EXPECT_EQ(reading.Names.back(), "L10");
}

TEST(LanguageFileTest, NothingBehindALineWithoutEndIsRead) {
  EXPECT_THAT(Read(kMark + std::string(1'100'000, 'x') + "\r\n" + Block("Ours", "a"), "Ours").Names,
              testing::IsEmpty());
}

}  // namespace
}  // namespace tests
