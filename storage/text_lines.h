// The program's text files as lines: opened, read from the code page into UTF-8 and written back, and the words in them
// that stand for a flag. A file that is none, or that the machine cannot read to its end, costs neither time nor memory
// nor an exception: it ends where it went wrong.
#pragma once

#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace storage {

/// A stream of the file's bytes; not open if there is no such file or something else bears the name: a folder, a device
/// or a pipe would answer with errors, without an end, or never.
std::ifstream OpenRegularFile(const std::filesystem::path& file);

/// No more bytes than these are read of a file; none of the program comes near it.
inline constexpr std::size_t kLargestFile = 1 << 20;

/// Where a line ends besides at a carriage return with or without line feed.
enum class LineFeeds {
  PartOfLine,  ///< files that the program writes itself: a lone line feed is a character
  EndLines,    ///< files written by hand, whose editor may know no carriage return
};

/// Has the file to itself: it reads ahead.
class LineReader {
 public:
  LineReader(std::istream& file, LineFeeds lineFeeds) : file_(*file.rdbuf()), lineFeeds_(lineFeeds) {}
  /// Reads the next line into `line`; false at the end of the file, and from a line on that reaches beyond
  /// `kLargestFile` or cannot be read. An unfinished last line counts if it is not empty.
  bool Next(std::string& line);
  /// The same in the bytes of the code page, which stand until the next line is read.
  bool NextBytes(std::string_view& line);
  /// Whether it was the file's length that ended the reading.
  bool EndedByLength() const { return bytesRead_ > kLargestFile; }

 private:
  bool ReadAhead();
  std::size_t LengthOfLine();

  std::streambuf& file_;
  LineFeeds lineFeeds_;
  std::string ahead_;      ///< read already
  std::size_t begin_ = 0;  ///< of what has not been handed out yet
  bool ended_ = false;
  std::size_t bytesRead_ = 0;
};

/// Builds a text file of the program in memory. Its bytes reach the disk in one piece, see safe_file.h.
class LineWriter {
 public:
  /// Adds a line. A carriage return would end it and push all behind it out of place, so one becomes a blank.
  void Add(std::string_view line);
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// Whether two texts are the same but for the case of the letters A to Z.
bool SameWord(std::string_view one, std::string_view other);

/// A flag as game files hold it.
std::string_view FlagWord(bool flag);

/// The flag that a line holds: its word in English or German and in any case, or a number, of which 0 is false.
/// Nothing for any other text.
std::optional<bool> FlagIn(std::string_view text);

}  // namespace storage
