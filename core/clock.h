// The clock of the game and the clock of the turn, which count seconds by the ticks of a timer.
#pragma once

#include <string>

#include "game_state.h"

namespace core {

/// One second passes: both clocks grow by 1 unless they are stopped. A clock at 32767 stays there.
void Tick(Game& game);

/// A count of seconds as "mm:ss", from an hour on as "h:mm:ss"; a negative count, which only a file can bring, as
/// 00:00.
std::string ClockText(int seconds);

}  // namespace core
