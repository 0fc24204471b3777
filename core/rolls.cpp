#include "rolls.h"

#include <algorithm>
#include <numeric>

#include "numbers.h"

namespace core {
namespace {

constexpr int kShipsPerAttack = 7;

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

/// Changes the count of a sum or face by one, down to 0 at the least; an index that a file has made up does nothing.
template <typename Counts>
void Change(Counts& counts, int index, int by) {
  if (index < 0 || index >= static_cast<int>(counts.size())) return;
  auto& count = counts[index];
  const std::int16_t changed = Saturate16(count + by);
  count = by < 0 ? std::max<std::int16_t>(changed, 0) : changed;
}

/// Counts and logs the entered roll; false if there is no room for it.
bool Record(State& state) {
  Game& game = state.game;
  if (CountTotalRolls(game) >= kLoggedRolls) return false;
  const TRoll roll{state.entry.Die1, state.entry.Die2, state.entry.EventDie};
  Change(game.DiceCount, roll.Die1 + roll.Die2, 1);
  Change(game.EventCount, roll.EventDie, 1);
  const int entry = CountTotalRolls(game);
  // Counts from a file may be negative: entry 0 and below are never written.
  if (entry >= 1 && entry <= kLoggedRolls) game.DiceLog[entry] = roll;
  return true;
}

std::int16_t Roll(const RandomSource& random, int sides) { return static_cast<std::int16_t>(random() * sides + 1); }

std::int16_t RollEventDie(const RandomSource& random, EventDieOf command) {
  if (command == EventDieOf::Mouse) return Roll(random, kEventFaces);
  return std::min<std::int16_t>(Roll(random, kDieFaces), kShipFace);
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

int DieOfKey(int keyCode) { return keyCode >= '1' && keyCode <= '6' ? keyCode - '0' : 0; }

std::int16_t CountTotalRolls(const Game& game) {
  return Saturate16(std::accumulate(game.DiceCount.begin() + kLowestSum, game.DiceCount.end(), 0));
}

bool IsAttack(const State& state) {
  const int ships = state.game.EventCount[kShipFace];
  return state.entry.EventDie == kShipFace && state.game.GameType == kFirstExpansion && ships > 0 &&
         ships % kShipsPerAttack == 0 && state.settings.ShowBarbarians;
}

void RecordRoll(State& state, Screen& screen) {
  state.entry.DiceEntryStage = 0;
  const bool recorded = Record(state);
  screen.ShowRolledDice();
  screen.DrawDiceStats();
  if (recorded && IsAttack(state)) screen.ShowAttack();
  state.game.Clock[1] = 0;
  screen.CloseDiceDialog();
}

void UndoLastRoll(State& state, Screen& screen) {
  Game& game = state.game;
  const int entry = CountTotalRolls(game);
  if (entry >= 0 && entry <= kLoggedRolls) {
    TRoll& roll = game.DiceLog[entry];
    Change(game.DiceCount, roll.Die1 + roll.Die2, -1);
    Change(game.EventCount, roll.EventDie, -1);
    roll = {};
  }
  screen.DrawDiceStats();
}

void AutoRoll(State& state, Screen& screen, const RandomSource& random, EventDieOf command) {
  state.entry.Die1 = Roll(random, kDieFaces);
  state.entry.Die2 = Roll(random, kDieFaces);
  state.entry.EventDie = RollEventDie(random, command);
  RecordRoll(state, screen);
}

}  // namespace core
