#include "language_file.h"

#include <algorithm>
#include <regex>
#include <utility>

#include "text_lines.h"

namespace storage {
namespace {

namespace text = core::text;

const std::string kBlockMark = "#LANGUAGE";

/// What stands for further texts that a block lacks. Where one of the first 118 texts will do, there is none.
constexpr std::pair<int, const char*> kInEnglish[] = {
    {text::NoSuchFolder, "There is no such folder."},
    {text::GameNotSaved, "The game could not be saved:"},
    {text::GameNotRead, "The game could not be read to its end:"},
    {text::GameNotPrinted, "The game could not be printed:"},
    {text::SettingsNotSaved, "The settings could not be saved:"},
    {text::NoLanguages, "The language file is missing or holds no language:"},
    {text::LanguageIncomplete, "This language is incomplete:"},
    {text::NoRoom, "The disk is full."},
    {text::NotAllowed, "Writing is not allowed there."},
    {text::NotAFile, "There is something there that is not a file."},
    {text::DiskFails, "The disk reports an error."},
    {text::CopiesFolder, "Copies of game evenings"},
    {text::LastSixToolTip, "The last 6 rolls, the newest on the left"},
    {text::BlackDie, "Black die"},
    {text::RedDie, "Red die"},
    {text::ClockRuns, "The game clock is running"},
    {text::CharacterRefused, "This field does not take this character:"},
    {text::TextGoesOn, "(The text goes on.)"},
};

/// Reads up to the line behind which the texts of the language stand. Any line that equals the name ends the search.
bool FindTexts(LineReader& reader, const std::string& name) {
  std::string line;
  while (reader.Next(line)) {
    if (line == kBlockMark && !reader.Next(line)) return false;
    if (line == name) return true;
  }
  return false;
}

/// "fi" or "pt_BR". Lines behind the texts of a block that do not begin so are no texts.
bool IsLanguageCode(const std::string& line) {
  static const std::regex code("[a-z]{2,3}(_[A-Z]{2})?");
  return std::regex_match(line, code);
}

}  // namespace

int ListLanguages(std::istream& file, core::Language& language) {
  language.Languages.resize(1);
  LineReader reader(file, LineFeeds::EndLines);
  std::string line;
  while (reader.Next(line)) {
    if (line != kBlockMark || !reader.Next(line)) continue;
    // A name that is empty, or means that none was chosen, could never be chosen.
    if (line.empty() || line == core::kNoLanguageYet) continue;
    language.Languages.push_back(line);
  }
  return static_cast<int>(language.Languages.size()) - 1;
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
  while (count < core::kTextRoom && reader.Next(line) && line != kBlockMark) {
    if (count == core::kTexts && !IsLanguageCode(line)) break;
    language.Text[++count] = line;
  }
  for (const auto& [number, english] : kInEnglish) {
    if (language.Text[number].empty()) language.Text[number] = english;
  }
  return std::min(count, core::kTexts);
}

}  // namespace storage
