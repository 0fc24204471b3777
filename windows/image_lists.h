// The pictures that forms share: image lists addressed from 1, and single drawings.
#pragma once

#include "../platform/picture.h"

namespace windows {

/// Dice: 1 to 6 red faces, 7 to 12 black faces, 13 to 16 faces of the event die, 17 to 19 blank red, black and grey.
inline constexpr platform::ImageList imlW{"imlW", 19, 31};
inline constexpr int kBlankRed = 17;
inline constexpr int kBlankBlack = 18;
inline constexpr int kBlankGrey = 19;
inline constexpr int kBeforeBlackFaces = 6;   ///< the image of black face n is n more
inline constexpr int kBeforeEventFaces = 12;  ///< the image of event face n is n more

/// Symbols: 1 settlement, 2 city, 3 to 5 politics, trade and science metropolis, 6 merchant, 7 longest road, 8 largest
/// army, 9 bonus point, 10 city laid waste, 11 any metropolis.
inline constexpr platform::ImageList imlIcons{"imlIcons", 11, 16};
/// The number of the text that names what a symbol from 1 to 9 stands for.
constexpr int TextOfSymbol(int symbol) {
  constexpr int kTexts[] = {48, 49, 52, 53, 54, 56, 50, 51, 55};
  return kTexts[symbol - 1];
}

/// The buttons of the tool bar, without its separators.
inline constexpr platform::ImageList imlToolbar{"imlToolbar", 11, 16};

/// Kinds of game: 1 base game, 2 first expansion, 3 second expansion, 4 more than four players, 5 scenario.
inline constexpr platform::ImageList imlGameType{"imlGameType", 5, 48};

/// The program's own icon, the one for places of 16 pixels, and the arrow from a row of dice to the chosen one.
inline const platform::Picture kProgramIcon{"orvanbeg.svg"};
inline const platform::Picture kSmallProgramIcon{"orvanbeg-16.svg"};
inline const platform::Picture kArrow{"arrow.svg"};
inline const platform::Picture kLogo{"logo.svg"};
inline const platform::Picture kWinner{"winner.svg"};
inline const platform::Picture kMetropolis{"metropolis.svg"};
/// Faint in themselves, to be painted first: for the chart's right column while no event die fills it, 97 by 174
/// pixels, and for the table of an attack, 243 by 147.
inline const platform::Picture kEmblem{"emblem.svg"};
inline const platform::Picture kShips{"ships.svg"};

}  // namespace windows
