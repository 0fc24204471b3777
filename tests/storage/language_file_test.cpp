// Language files as people write them, whole and damaged. What is in the one that is shipped scripts/check-languages
// keeps.
#include "../../storage/language_file.h"

#include <gtest/gtest.h>

#include <span>
#include <sstream>

namespace {

/// A block whose text number n is the word and n.
std::string Block(const std::string& name, const std::string& word, int count = 118) {
  std::string lines = "#LANGUAGE\r\n" + name + "\r\n";
  for (int i = 1; i <= count; ++i) lines += word + std::to_string(i) + "\r\n";
  return lines;
}

/// What is listed and in memory after the language "Wanted" was loaded over old texts:
/// "Ours,Wanted,: 118 texts, b1 to b118", and behind that the first two further texts and one of the program's own.
std::string Read(const std::string& bytes) {
  core::Language language;
  language.Languages = {"Wanted", "old"};
  language.Text.fill("old");
  std::istringstream list(bytes), texts(bytes);
  storage::ListLanguages(list, language);
  std::string found;
  for (const std::string& name : std::span(language.Languages).subspan(1)) found += name + ",";
  found += ": " + std::to_string(storage::LoadTexts(texts, language)) + " texts, ";
  found += language.Text[1] + " to " + language.Text[118];
  const bool further = language.Text[161] != "The game could not be saved:";
  return further ? found + ", " + language.Text[119] + " " + language.Text[120] + " " + language.Text[161] : found;
}

TEST(LanguageFileTest, FindsBlocksAndTheirTexts) {
  const std::string ours = Block("Ours", "a"), wanted = Block("Wanted", "b"), mark = "#LANGUAGE\r\n";
  std::string further;
  for (int i = 121; i <= 200; ++i) further += "f" + std::to_string(i) + "\r\n";
  const std::tuple<const char*, std::string, std::string> cases[] = {
      {"second block, and lines between", "; x\r\n\r\n" + ours + "more\r\n" + wanted,
       "Ours,Wanted,: 118 texts, b1 to b118"},
      {"further texts", wanted + "de\r\nyes\r\n" + further + ours, "Wanted,Ours,: 118 texts, b1 to b118, de yes f161"},
      {"more lines than room", wanted + "pt_BR\r\n\r\n" + further + further,
       "Wanted,: 118 texts, b1 to b118, pt_BR  f161"},
      {"no code, so no further texts", wanted + "DE\r\nyes\r\n" + further, "Wanted,: 118 texts, b1 to b118"},
      {"earlier text equals the name", mark + "Ours\r\nWanted\r\nx\r\n" + wanted, "Ours,Wanted,: 1 texts, x to "},
      {"no marks", "#language\r\nOurs\r\n#LANGUAGE \r\nOurs\r\n" + wanted, "Wanted,: 118 texts, b1 to b118"},
      {"empty text", Block("Wanted\r\n", "b", 117), "Wanted,: 118 texts,  to b117"},
      {"short block", Block("Wanted", "b", 3) + ours, "Wanted,Ours,: 3 texts, b1 to "},
      {"mark as the last line", ours + "#LANGUAGE", "Ours,: -1 texts, old to old, old old old"},
      {"line feeds only", "#LANGUAGE\nWanted\nx\n", "Wanted,: 1 texts, x to "}};
  for (const auto& [what, bytes, found] : cases) EXPECT_EQ(Read(bytes), found) << what;
}

}  // namespace
