#include "language_file.h"

#include <algorithm>

#include "line_reader.h"

namespace storage {
namespace {

const std::string kBlockMark = "#LANGUAGE";

/// Reads up to the line behind which the texts of the language stand. Any line that equals the name ends the search.
bool FindTexts(LineReader& reader, const std::string& name) {
  std::string line;
  while (reader.Next(line)) {
    if (line == kBlockMark && !reader.Next(line)) return false;
    if (line == name) return true;
  }
  return false;
}

}  // namespace

int ListLanguages(std::istream& file, core::Language& language) {
  std::fill(language.Languages.begin() + 1, language.Languages.end(), std::string());
  LineReader reader(file, LineFeeds::EndLines);
  int listed = 0;
  std::string line;
  while (reader.Next(line)) {
    if (line != kBlockMark || !reader.Next(line)) continue;
    // A name that is empty, or means that none was chosen, could never be chosen.
    if (listed == core::kLanguageRoom || line.empty() || line == core::kNoLanguageYet) continue;
    language.Languages[++listed] = line;
  }
  return listed;
}

bool IsListed(const core::Language& language, const std::string& name) {
  const auto& names = language.Languages;
  return !name.empty() && std::find(names.begin() + 1, names.end(), name) != names.end();
}

int LoadTexts(std::istream& file, core::Language& language) {
  LineReader reader(file, LineFeeds::EndLines);
  if (!FindTexts(reader, language.Languages[0])) return -1;
  std::fill(language.Text.begin(), language.Text.end(), std::string());
  std::string line;
  int count = 0;
  while (count < core::kTexts && reader.Next(line) && line != kBlockMark) {
    language.Text[++count] = line;
  }
  return count;
}

}  // namespace storage
