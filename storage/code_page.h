// The program's text files are Windows-1252, one byte a character, on every machine; in memory all text is UTF-8. All
// 256 bytes survive reading and writing: the five that the code page leaves open stand for the control characters
// of the same number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace storage {

/// The text that these bytes of a file hold.
std::string FromCodePage(std::string_view bytes);

/// The bytes of a text; a character that the code page does not have becomes "?".
std::string ToCodePage(std::string_view utf8);

/// What of a typed text one line of a file can hold. A letter that the code page lacks becomes the nearest one without
/// its marks, "Ł" an "L"; a character that has none is left out, and `refused` gets the first of these. Control
/// characters and what cannot be seen are left out. For the text fields whose content reaches a file.
std::string Storable(const std::string& utf8, std::string* refused = nullptr);

/// The character with this code, 0 to 255, as text; empty for any other number.
std::string CharacterOf(int code);

}  // namespace storage
