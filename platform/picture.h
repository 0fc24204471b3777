// A picture is a name: of a drawing compiled into the program, or of a file. Whoever shows it knows how to find and
// draw it; the model only says which one.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace platform {

struct Picture {
  std::string Name;        ///< empty: no picture
  bool IsResource = true;  ///< compiled in; else a file below the program's folder

  bool operator==(const Picture&) const = default;
  bool Empty() const { return Name.empty(); }
};

/// A numbered list of pictures of one size, addressed from 1.
struct ImageList {
  std::string_view Name;  ///< folder of the drawings among the resources
  int Count = 0;
  int Size = 0;  ///< width and height of each picture, in pixels

  /// Picture number `index`; an empty picture for a number outside the list, which a game file can bring about.
  Picture Image(int index) const {
    if (index < 1 || index > Count) return {};
    char number[16];
    std::snprintf(number, sizeof number, "/%02d.svg", index);
    return {std::string(Name) + number, true};
  }
};

}  // namespace platform
