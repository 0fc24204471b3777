// Measures and colours that several forms share.
#pragma once

#include <array>

#include "../platform/colour.h"
#include "../platform/units.h"

namespace windows {

/// A row or column of places, each so many twips from the one before.
template <int Count>
constexpr std::array<platform::Place, Count> Repeat(platform::Place first, int right, int down) {
  std::array<platform::Place, Count> places;
  for (int i = 0; i < Count; ++i) places[static_cast<std::size_t>(i)] = first.Moved(right * i, down * i);
  return places;
}

/// Plain text on the dice chart and on the strip of the last rolls.
inline constexpr platform::Colour kLightGrey{232, 232, 232};

/// The ground of tables that are drawn in black and grey, on light and dark desktops alike.
inline constexpr platform::Colour kPaper{246, 243, 234};

}  // namespace windows
