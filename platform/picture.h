// A picture by its name: a drawing that is compiled in, or a file.
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

  /// Picture number `index`; an empty picture for a number outside the list, which may come from a game file.
  Picture Image(int index) const {
    if (index < 1 || index > Count) return {};
    char number[16];
    std::snprintf(number, sizeof number, "/%02d.svg", index);
    return {std::string(Name) + number, true};
  }
};

}  // namespace platform
