// The pictures that forms share: image lists addressed from 1, and single drawings.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../platform/picture.h"

namespace windows {

/// All dice; the functions below know the order.
inline constexpr platform::ImageList imlW{"imlW", 19, 31};

/// The pictures of `imlW`.
enum DicePicture {
  kFirstRedFace = 1,
  kFirstBlackFace = 7,
  kFirstEventFace = 13,
  kBlankRed = 17,
  kBlankBlack = 18,
  kBlankGrey = 19
};

/// A face of a die, from 1; 0 is the die before a roll, blank.
inline platform::Picture RedDie(int face) { return imlW.Image(face > 0 ? kFirstRedFace - 1 + face : kBlankRed); }
inline platform::Picture BlackDie(int face) { return imlW.Image(face > 0 ? kFirstBlackFace - 1 + face : kBlankBlack); }
inline platform::Picture EventDie(int face) { return imlW.Image(face > 0 ? kFirstEventFace - 1 + face : kBlankGrey); }
/// The number of the text that names a face of the event die, 1 to 4.
constexpr int TextOfEventFace(int face) { return core::text::Politics - 1 + face; }
/// How a die of a row, 0 black, 1 red, 2 event, is spoken with a face.
inline std::string SpokenDie(const core::State& state, int row, int face) {
  if (row == 2) return face == 0 ? "-" : state.Text(TextOfEventFace(face));
  return state.Text(row == 0 ? core::text::BlackDie : core::text::RedDie) + ": " +
         (face == 0 ? "-" : std::to_string(face));
}

/// The symbols of all that a player holds, by `core::Symbol`.
inline constexpr platform::ImageList imlIcons{"imlIcons", 11, 16};
/// The number of the text that names what a symbol stands for; those of a lost city and of any metropolis have none.
constexpr int TextOf(core::Symbol symbol) {
  using namespace core::text;
  constexpr int kTexts[] = {Settlements, Cities,      PoliticsMetropolis, TradeMetropolis, ScienceMetropolis,
                            Merchant,    LongestRoad, LargestArmy,        BonusPoints};
  return kTexts[symbol - 1];
}

/// The buttons of the tool bar, without its separators.
inline constexpr platform::ImageList imlToolbar{"imlToolbar", 11, 16};

/// Kinds of game, and what a game has beside.
inline constexpr platform::ImageList imlGameType{"imlGameType", 5, 48};
enum GamePicture {
  kBaseGamePicture = 1,
  kFirstExpansionPicture,
  kFlottillenPicture,
  kManyPlayersPicture,
  kScenarioPicture
};

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
