#include "line_reader.h"

#include <algorithm>

#include "code_page.h"

namespace storage {
namespace {

constexpr std::size_t kPiece = 1 << 14;  // bytes read at once

}  // namespace

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
  const bool isReturn = StandsAt(begin_ + length, '\r');
  const bool isPair = isReturn && StandsAt(begin_ + length + 1, '\n');
  line = std::string_view(ahead_).substr(begin_, length);
  begin_ = std::min(begin_ + length + (isPair ? 2 : 1), ahead_.size());
  return true;
}

/// Up to the line's end, that of the file, or where the file is too long; all of it has been read ahead then.
std::size_t LineReader::LengthOfLine() {
  const auto isEnd = [this](char byte) { return byte == '\r' || (byte == '\n' && lineFeeds_ == LineFeeds::EndLines); };
  std::size_t length = 0;
  do {
    const auto from = ahead_.begin() + static_cast<std::ptrdiff_t>(begin_ + length);
    const auto end = std::find_if(from, ahead_.end(), isEnd);
    length += static_cast<std::size_t>(end - from);
    if (end != ahead_.end()) break;
  } while (!EndedByLength() && ReadAhead());
  return length;
}

bool LineReader::StandsAt(std::size_t place, char byte) {
  const std::size_t offset = place - begin_;
  return (place < ahead_.size() || ReadAhead()) && ahead_[begin_ + offset] == byte;
}

/// Reads another piece behind what has not been told yet; false at the end of the file.
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

}  // namespace storage
