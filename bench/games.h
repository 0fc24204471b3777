// Games for the measurements.
#pragma once

#include "../core/game_state.h"

namespace bench {

/// Rolls the dice `rolls` times (0 to 500), so that all sums come up.
inline void AddRolls(core::Game& game, int rolls) {
  for (int i = 1; i <= rolls; ++i) {
    core::TRoll& roll = game.DiceLog[static_cast<std::size_t>(i)];
    roll.Die1 = static_cast<std::int16_t>(i % 6 + 1);
    roll.Die2 = static_cast<std::int16_t>(i / 6 % 6 + 1);
    ++game.DiceCount[static_cast<std::size_t>(roll.Die1 + roll.Die2)];
  }
}

}  // namespace bench
