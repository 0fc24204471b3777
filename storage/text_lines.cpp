#include "text_lines.h"

#include <algorithm>

#include "../core/numbers.h"
#include "code_page.h"

namespace storage {
namespace {

constexpr std::size_t kPiece = 1 << 14;  // bytes read at once

char Capital(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }

}  // namespace

std::ifstream OpenRegularFile(const std::filesystem::path& file) {
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(file, unknown)) return {};
  return std::ifstream(file, std::ios::binary);
}

bool LineReader::Next(std::string& line) {
  std::string_view bytes;
  const bool read = NextBytes(bytes);
  line = FromCodePage(bytes);
  return read;
}

bool LineReader::NextBytes(std::string_view& line) {
  line = {};
  const std::size_t length = ended_ ? 0 : LengthOfLine();
  ended_ = ended_ || EndedByLength() || begin_ == ahead_.size();
  if (ended_) return false;
  if (begin_ + length + 2 > ahead_.size()) ReadAhead();  // perhaps to the other half of the line's end
  line = {ahead_.data() + begin_, length};
  begin_ += length;
  const std::string_view end = std::string_view(ahead_).substr(begin_, 2);
  begin_ += end == "\r\n" ? 2 : std::min<std::size_t>(end.size(), 1);
  return true;
}

/// Up to the line's end, that of the file, or where the file is too long; all of it has been read ahead then.
std::size_t LineReader::LengthOfLine() {
  const char other = lineFeeds_ == LineFeeds::EndLines ? '\n' : '\r';
  std::size_t length = 0;
  do {
    for (const std::size_t all = ahead_.size() - begin_; length < all; ++length) {
      const char byte = ahead_[begin_ + length];
      if (byte == '\r' || byte == other) return length;
    }
  } while (!EndedByLength() && ReadAhead());
  return length;
}

/// Reads another piece behind what has not been handed out yet; false at the end of the file.
bool LineReader::ReadAhead() {
  ahead_.erase(0, begin_);
  begin_ = 0;
  const std::size_t before = ahead_.size();
  ahead_.resize(before + kPiece);
  std::streamsize read = 0;
  try {
    read = file_.sgetn(ahead_.data() + before, kPiece);
  } catch (const std::ios_base::failure&) {  // a folder, or a disk with a fault
  }
  ahead_.resize(before + static_cast<std::size_t>(std::max<std::streamsize>(read, 0)));
  bytesRead_ += ahead_.size() - before;
  return read > 0;
}

void LineWriter::Add(std::string_view line) {
  std::string bytes = ToCodePage(line);
  std::replace(bytes.begin(), bytes.end(), '\r', ' ');
  bytes_ += bytes + "\r\n";
}

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
