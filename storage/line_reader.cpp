#include "line_reader.h"

#include "code_page.h"

namespace storage {

bool LineReader::Next(std::string& line) {
  using Traits = std::streambuf::traits_type;
  std::string bytes;
  auto next = file_.sbumpc();
  const bool atEnd = Traits::eq_int_type(next, Traits::eof());
  for (; !Traits::eq_int_type(next, Traits::eof()); next = file_.sbumpc()) {
    const char byte = Traits::to_char_type(next);
    if (byte == '\r') {
      if (Traits::eq_int_type(file_.sgetc(), '\n')) file_.sbumpc();
      break;
    }
    if (byte == '\n' && lineFeeds_ == LineFeeds::EndLines) break;
    bytes += byte;
  }
  line = FromCodePage(bytes);
  return !atEnd;
}

}  // namespace storage
