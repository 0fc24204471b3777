// Builds a text file of the program in memory, line by line, from UTF-8 into the code page. Its bytes reach the disk in
// one piece, see safe_file.h.
#pragma once

#include <string>
#include <string_view>

namespace storage {

class LineWriter {
 public:
  /// Adds a line. A carriage return would end it and push all behind it out of place, so one becomes a blank.
  void Add(std::string_view line);
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace storage
