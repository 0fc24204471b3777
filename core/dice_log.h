// Every roll passes through here, however it came about: it is counted and logged, and can be taken back. The number of
// rolls is stored nowhere; it is the sum of the counts, and the log's write position follows from it.
#pragma once

#include "game_state.h"
#include "screen.h"

namespace core {

/// The sum of `DiceCount(2..12)`, which becomes `TotalRolls`.
std::int16_t CountTotalRolls(Game& game);

/// Counts and logs the roll of `Die1`, `Die2` (1 to 6) and `EventDie` (0 to 4), shows it and ends its entry. A roll
/// for which the log has no room left is shown but neither counted nor logged. Called by the dice dialog and by both
/// ways of rolling automatically.
void RecordRoll(State& state, Screen& screen);

/// Takes the last logged roll out of the counts and the log; what counts and log do not agree on stays. Called after
/// the user has confirmed it.
void UndoLastRoll(State& state, Screen& screen);

/// Whether the roll just counted brings the barbarians: every seventh ship of a game that has them.
bool IsAttack(const State& state);

}  // namespace core
