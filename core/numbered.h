// An array whose elements bear numbers of the game: seats, sums of two dice, faces, entries of the log. Any kind of
// integer is an index; one that a game file has made up throws instead of reaching beyond the array.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>

namespace core {

template <typename Element, std::size_t Size>
struct Numbered : std::array<Element, Size> {
  /// Throws std::out_of_range where there is no such element.
  constexpr Element& operator[](std::integral auto number) { return this->at(static_cast<std::size_t>(number)); }
  constexpr const Element& operator[](std::integral auto number) const {
    return this->at(static_cast<std::size_t>(number));
  }
};

}  // namespace core
