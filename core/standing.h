// The standing: the players in the order of their victory points, the row of symbols for what each of them holds, and
// the totals of the pieces on the board.
#pragma once

#include <string>
#include <vector>

#include "game_state.h"

namespace core {

/// One place of the standing. Players of equal points share a rank, and the next lower one takes its position: 1, 1, 3.
struct RankedPlayer {
  int Rank = 0;
  std::string Name;
  bool Active = false;
  std::int16_t Points = 0;  ///< 0 for a seat that does not play, whatever its holdings

  bool operator==(const RankedPlayer&) const = default;
};

/// The first `NumPlayers` places (at most six, none for a number below 1) of all six seats, most points first; among
/// equals the lower seat comes first. Uses `PlayerPoints` without working them out anew.
std::vector<RankedPlayer> RankPlayers(const State& state);

/// What a symbol stands for; its number is that of the picture.
enum Symbol {
  kSettlementSymbol = 1,
  kCitySymbol = 2,
  kPoliticsSymbol = 3,
  kTradeSymbol = 4,
  kScienceSymbol = 5,
  kMerchantSymbol = 6,
  kLongestRoadSymbol = 7,
  kLargestArmySymbol = 8,
  kBonusPointSymbol = 9,
  kLostCitySymbol = 10,
  kMetropolisSymbol = 11  ///< any of the three
};

/// The symbols of all that a player holds, in their order, at most so many: what lies beyond the edge of the paper or
/// panel costs nothing, whatever counts a file claims. A metropolis is a city, shown once, by its gate.
std::vector<Symbol> SymbolsOf(const TPlayer& player, int atMost);

struct BoardTotals {
  int Settlements = 0;
  int Cities = 0;
  int Metropolises = 0;

  bool operator==(const BoardTotals&) const = default;
};

/// The pieces of the players at the table, whether or not they are marked as playing.
BoardTotals CountBoard(const Game& game);

}  // namespace core
