// Any bytes as a language file: its languages are listed and each of them is loaded.
#include <cstdint>
#include <iterator>
#include <sstream>

#include "../storage/language_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  core::Language language;
  std::istringstream list(bytes);
  const int listed = storage::ListLanguages(list, language);
  if (listed + 1 != std::ssize(language.Languages)) __builtin_trap();
  for (int i = 1; i <= listed; ++i) {
    language.Languages[0] = language.Languages[static_cast<std::size_t>(i)];
    std::istringstream texts(bytes);
    const int count = storage::LoadTexts(texts, language);
    // A listed language is found again, and the program always has its own words.
    if (count < 0 || count > core::kTexts || language.Text[core::text::GameNotSaved].empty()) __builtin_trap();
  }
  return 0;
}
