// The row of symbols that stands for everything a player holds, on the panels and on paper.
#pragma once

#include <vector>

#include "game_state.h"

namespace core {

/// The numbers of the player's symbols in their order, at most so many: what lies beyond the edge of the paper or panel
/// costs nothing, whatever counts a file claims. A metropolis is a city, shown once, by its gate.
std::vector<int> SymbolsOf(const TPlayer& player, int atMost);

}  // namespace core
