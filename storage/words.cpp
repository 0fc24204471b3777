#include "words.h"

#include <algorithm>

#include "../core/numbers.h"

namespace storage {
namespace {

char Capital(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }

}  // namespace

bool SameWord(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return Capital(a) == Capital(b); });
}

std::string_view FlagWord(bool flag) { return flag ? "True" : "False"; }

std::optional<bool> FlagIn(std::string_view text) {
  if (SameWord(text, FlagWord(true)) || SameWord(text, "Wahr")) return true;
  if (SameWord(text, FlagWord(false)) || SameWord(text, "Falsch")) return false;
  const auto number = core::NumberIn(text);
  return number ? std::optional(*number != 0) : std::nullopt;
}

}  // namespace storage
