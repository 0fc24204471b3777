// The seats at the table as loops need them: seats 1 to 6 without the unused place 0, and the number of players brought
// into what there is, since a game file may hold any flags and an old one any number.
#pragma once

#include <algorithm>
#include <span>

#include "game_state.h"

namespace core {

/// Elements 1 and up of an array whose element 0 holds no game data.
template <typename Elements>
auto WithoutPlaceZero(Elements& elements) {
  return std::span(elements).template subspan<1>();
}

/// Whether the number names a seat, 1 to 6.
inline bool IsSeat(int number) { return number >= 1 && number <= kSeats; }

/// `NumPlayers`, at least 0 and at most the six seats.
inline int SeatsPlayed(const Game& game) { return std::clamp<int>(game.NumPlayers, 0, kSeats); }

/// The players of the seats 1 to `NumPlayers`, whether or not they are marked as playing.
inline std::span<const TPlayer> PlayersAtTheTable(const Game& game) {
  return WithoutPlaceZero(game.Players).first(static_cast<std::size_t>(SeatsPlayed(game)));
}

}  // namespace core
