// The players in the order of their victory points, as the standing lists them.
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
/// equals the lower seat stands first. Reads `PlayerPoints` as they stand.
std::vector<RankedPlayer> RankPlayers(const Game& game);

}  // namespace core
