// The entry of a roll by keys and clicks, up to the moment when it can be recorded. The dice dialog shows what these
// functions tell it.
#pragma once

#include "game_state.h"

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

/// Whether the event die is part of the game.
bool HasEventDie(const Game& game);
/// The value of a digit key of a die, 1 to 6; 0 for any other key.
int DieOfKey(int keyCode);

}  // namespace core
