#include "dice_entry.h"

namespace core {
namespace {

Entered EnterDigit(Entry& entry, int value) {
  if (entry.DiceEntryStage == 0) {
    entry.DiceEntryStage = 1;
    entry.Die1 = static_cast<std::int16_t>(value);
    return Entered::BlackDie;
  }
  if (entry.DiceEntryStage == 1) {
    entry.DiceEntryStage = 2;
    entry.Die2 = static_cast<std::int16_t>(value);
    return Entered::RedDie;
  }
  return Entered::Nothing;
}

}  // namespace

void BeginEntry(Entry& entry) {
  entry.Die1 = 0;
  entry.Die2 = 0;
  entry.EventDie = 0;
}

void BeginEntryWithDigit(Entry& entry, std::int16_t value) {
  BeginEntry(entry);
  entry.DiceEntryStage = 1;
  entry.Die1 = value;
}

Entered EnterKey(State& state, int keyCode) {
  if (const int value = DieOfKey(keyCode)) return EnterDigit(state.entry, value);
  if (state.entry.DiceEntryStage != 2 || keyCode == 0) return Entered::Nothing;
  Entered entered = Entered::Nothing;
  for (std::int16_t face = 1; face <= kEventFaces; ++face) {
    if (state.settings.EventHotkey[face] != keyCode) continue;
    state.entry.EventDie = face;
    entered = Entered::EventFace;
  }
  return entered;
}

bool EntryComplete(const State& state) {
  return state.entry.Die1 > 0 && state.entry.Die2 > 0 && (state.entry.EventDie > 0 || !HasEventDie(state.game));
}

bool HasEventDie(const Game& game) { return game.GameType != kBaseGame; }

int DieOfKey(int keyCode) { return keyCode >= '1' && keyCode <= '6' ? keyCode - '0' : 0; }

}  // namespace core
