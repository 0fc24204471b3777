// Rolls: their entry by keys and clicks, the counts and the log that every roll goes through however it came about,
// taking the last one back, and rolling automatically. The number of rolls is stored nowhere; it is the sum of the
// counts, and the log's write position follows from it.
#pragma once

#include <functional>

#include "game_state.h"
#include "screen.h"

namespace core {

/// What a key has entered.
enum class Entered { Nothing, BlackDie, RedDie, EventFace };

/// An empty entry. `DiceEntryStage` stays: it is 0 between two entries.
void BeginEntry(Entry& entry);

/// An entry whose black die (1 to 6) was typed already.
void BeginEntryWithDigit(Entry& entry, std::int16_t value);

/// A key was typed: digits 1 to 6 enter the black and then the red die; after both, the key of a face enters it. Of
/// two faces with the same key the higher wins.
Entered EnterKey(State& state, int keyCode);

/// Whether the entry is complete: both dice, and the event die where the game has one.
bool EntryComplete(const State& state);

/// The value of a digit key of a die, 1 to 6; 0 for any other key.
int DieOfKey(int keyCode);

/// The sum of `DiceCount(2..12)`.
std::int16_t CountTotalRolls(const Game& game);

/// Counts and logs the roll of `Die1`, `Die2` (1 to 6) and `EventDie` (0 to 4), shows it and ends its entry. A roll
/// for which the log has no room left is shown but neither counted nor logged.
void RecordRoll(State& state, Screen& screen);

/// Takes the last logged roll out of the counts and the log; what counts and log do not agree on stays.
void UndoLastRoll(State& state, Screen& screen);

/// Whether the roll just counted brings the barbarians: every seventh ship of a game that has them.
bool IsAttack(const State& state);

/// Gives random numbers, at least 0 and below 1.
using RandomSource = std::function<double()>;

/// The odds of the event die: the menu knows three ships on six sides, the mouse four even faces.
enum class EventDieOf { Menu, Mouse };

/// Rolls all three dice, one random number each, and records the roll.
void AutoRoll(State& state, Screen& screen, const RandomSource& random, EventDieOf command);

}  // namespace core
