// Words in the program's files: how they are compared, and the two that stand for a flag.
#pragma once

#include <optional>
#include <string_view>

namespace storage {

/// Whether two texts are the same but for the case of the letters A to Z.
bool SameWord(std::string_view one, std::string_view other);

/// A flag as game files hold it.
std::string_view FlagWord(bool flag);

/// The flag that a line holds: its word in English or German and in any case, or a number, of which 0 is false.
/// Nothing for any other text.
std::optional<bool> FlagIn(std::string_view text);

}  // namespace storage
