#include "code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace storage {
namespace {

// The characters of the bytes 0x80 to 0x9F; all others have the number of their byte.
constexpr std::array<char32_t, 32> kUpperControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The nearest letters to those of these two ranges, each without its marks; a dot where there is none.
struct Letters {
  char32_t First;
  std::string_view Nearest;
};
constexpr Letters kLetters[] = {{0x100,
                                 "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlL"
                                 "lLlNnNnNnnNnOoOoOo..RrRrRrSsSsSs..TtTtTtUuUuUuUuUuUuWwYy.ZzZz..s"
                                 "bBBb..OCcDDDd..EEF.G...IKkl..Nn.Oo..Pp.....tTtTUu.VYyZz........."
                                 "....DDdLLlNNnAaIiOoUuUuUuUuUueAaAa..GgGgKkOoOo..jDDdGg..NnAa...."
                                 "AaAaEeEeIiIiOoOoRrRrUuUuSsTt..HhNd..ZzAaEeOoOoOoOoYylntj..ACcLTs"
                                 "z..BU.EeJj..RrYy"},
                                {0x1E00,
                                 "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMm"
                                 "MmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVv"
                                 "WwWwWwWwWwXxXxYyZzZzZzhtwyasssSdAaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
                                 "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYyLlVvYy"}};

// Other characters that a keyboard, an input method or a copied text brings, and the nearest ones.
constexpr std::pair<char32_t, char> kSigns[] = {{0x2010, '-'}, {0x2011, '-'},  {0x2012, '-'},  {0x2015, '-'},
                                                {0x2212, '-'}, {0x2032, '\''}, {0x02BC, '\''}, {0x02B9, '\''},
                                                {0x2009, ' '}, {0x202F, ' '},  {0x3000, ' '}};

constexpr char32_t kInvalid = 0xFFFFFFFF;

char32_t CharacterOfByte(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : byte;
}

void AppendUtf8(std::string& text, char32_t character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

/// Whether a byte means the same in both codes.
bool IsPlain(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Takes the next character off the text; kInvalid for a broken sequence, of which one byte is taken.
char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
  const auto tail = text.substr(1, length == 0 ? 0 : length - 1);
  if (length == 0 || tail.size() + 1 != length || !std::all_of(tail.begin(), tail.end(), IsContinuation)) {
    text.remove_prefix(1);
    return kInvalid;
  }
  char32_t character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) character = (character << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(length);
  return character;
}

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  if (found == kUpperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

/// The nearest letter or sign; nothing where there is none.
std::optional<char> NearestTo(char32_t character) {
  for (const auto& [first, nearest] : kLetters) {
    if (character < first || character - first >= nearest.size()) continue;
    const char letter = nearest[character - first];
    return letter == '.' ? std::nullopt : std::optional(letter);
  }
  const auto sign =
      std::find_if(std::begin(kSigns), std::end(kSigns), [=](auto& pair) { return pair.first == character; });
  return sign == std::end(kSigns) ? std::nullopt : std::optional(sign->second);
}

/// A mark upon the letter before it, a sign of the direction of writing and the like: nobody misses it.
bool IsUnseen(char32_t character) {
  return (character >= 0x300 && character <= 0x36F) || (character >= 0x200B && character <= 0x200F) ||
         (character >= 0x202A && character <= 0x202E) || character == 0x2060 || character == 0xFEFF;
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
  if (std::all_of(bytes.begin(), bytes.end(), IsPlain)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, CharacterOfByte(static_cast<unsigned char>(byte)));
  return text;
}

std::string ToCodePage(std::string_view utf8) {
  if (std::all_of(utf8.begin(), utf8.end(), IsPlain)) return std::string(utf8);
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += ByteOf(TakeCharacter(utf8)).value_or('?');
  return bytes;
}

std::string Storable(const std::string& utf8, std::string* refused) {
  std::string text;
  std::string_view rest = utf8;
  while (!rest.empty()) {
    const std::string_view before = rest;
    const char32_t character = TakeCharacter(rest);
    if (character < ' ' || IsUnseen(character)) continue;
    if (ByteOf(character)) {
      AppendUtf8(text, character);
    } else if (const auto nearest = NearestTo(character)) {
      text += *nearest;
    } else if (refused && refused->empty()) {
      *refused = before.substr(0, before.size() - rest.size());
    }
  }
  return text;
}

std::string CharacterOf(int code) {
  if (code < 0 || code > 255) return {};
  const char byte = static_cast<char>(code);
  return FromCodePage({&byte, 1});
}

}  // namespace storage
