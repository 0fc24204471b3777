#include "line_writer.h"

#include <algorithm>

#include "code_page.h"

namespace storage {

void LineWriter::Add(std::string_view line) {
  std::string bytes = ToCodePage(line);
  std::replace(bytes.begin(), bytes.end(), '\r', ' ');
  bytes_ += bytes + "\r\n";
}

}  // namespace storage
