#include "line_reader.h"

#include "code_page.h"

namespace storage {

bool LineReader::Next(std::string& line) {
  std::string bytes;
  try {
    ended_ = ended_ || !NextBytes(bytes);
  } catch (const std::ios_base::failure&) {  // a folder, or a disk with a fault
    ended_ = true;
  }
  line = ended_ ? std::string() : FromCodePage(bytes);
  return !ended_;
}

bool LineReader::NextBytes(std::string& bytes) {
  using Traits = std::streambuf::traits_type;
  auto next = file_.sbumpc();
  const bool atEnd = Traits::eq_int_type(next, Traits::eof());
  for (; !Traits::eq_int_type(next, Traits::eof()); next = file_.sbumpc()) {
    const char byte = Traits::to_char_type(next);
    if (byte == '\r') {
      if (Traits::eq_int_type(file_.sgetc(), '\n')) file_.sbumpc();
      break;
    }
    if (byte == '\n' && lineFeeds_ == LineFeeds::EndLines) break;
    endedByLength_ = bytes.size() == kLongestLine;
    if (endedByLength_) return false;
    bytes += byte;
  }
  return !atEnd;
}

}  // namespace storage
