// A folder with all that the program needs to start, in a language whose texts are their numbers: what a test expects
// does not hang on any wording, and a wrong number is seen.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "../core/texts.h"

namespace tests {

inline constexpr const char* kNumbers = "Numbers";  ///< the language of the file

/// "T57"; the texts that name menus and commands have an access key, as in every language: "&T1".
inline std::string Numbered(int text) {
  const bool names = text <= 15 || text == 111 || text == 112 || text == 118;
  return (names ? "&T" : "T") + std::to_string(text);
}

inline std::filesystem::path MakeNumberedProgram(const std::filesystem::path& folder) {
  std::ofstream file(folder / "language.ini", std::ios::binary);
  file << "#LANGUAGE\r\n" << kNumbers << "\r\n";
  for (int text = 1; text <= core::text::PlayersAfterNumber; ++text) {
    file << (text == core::text::LanguageCode ? "en" : Numbered(text)) << "\r\n";
  }
  return folder;
}

}  // namespace tests
