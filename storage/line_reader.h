// Reads a text file of the program line by line, from the code page into UTF-8.
#pragma once

#include <istream>
#include <string>

namespace storage {

/// Where a line ends besides at a carriage return with or without line feed.
enum class LineFeeds {
  PartOfLine,  ///< files that the program writes itself: a lone line feed is a character
  EndLines,    ///< files written by hand, whose editor may know no carriage return
};

class LineReader {
 public:
  LineReader(std::istream& file, LineFeeds lineFeeds) : file_(*file.rdbuf()), lineFeeds_(lineFeeds) {}
  /// Reads the next line into `line`; false at the end of the file. An unfinished last line counts if it is not empty.
  bool Next(std::string& line);

 private:
  std::streambuf& file_;
  LineFeeds lineFeeds_;
};

}  // namespace storage
