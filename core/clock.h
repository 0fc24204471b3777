// The clock of the game and the clock of the turn, which count seconds by the ticks of a timer, and the totals of the
// pieces on the board, which are shown beside them at each tick.
#pragma once

#include <string>

#include "game_state.h"

namespace core {

/// One second passes: both clocks grow by 1 unless they stand. A clock at 32767 stays there. Called once a second.
void Tick(Game& game);

/// A count of seconds as "mm:ss", from an hour on as "h:mm:ss"; a negative count, which only a file can bring, as
/// 00:00.
std::string ClockText(int seconds);

struct BoardTotals {
  int Settlements = 0;
  int Cities = 0;
  int Metropolises = 0;

  bool operator==(const BoardTotals&) const = default;
};

/// The pieces of the seats 1 to `NumPlayers`, whether or not they are marked as playing. Called for the totals of the
/// main window and of the barbarian window.
BoardTotals CountBoard(const Game& game);

}  // namespace core
