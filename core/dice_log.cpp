#include "dice_log.h"

#include <algorithm>
#include <numeric>

#include "arithmetic.h"

namespace core {
namespace {

constexpr int kShipsPerAttack = 7;

template <typename Counts>
void Add(Counts& counts, int index, int change) {
  if (index < 0 || index >= static_cast<int>(counts.size())) return;
  auto& count = counts[static_cast<std::size_t>(index)];
  count = Saturate16(count + change);
}

template <typename Counts>
void TakeBack(Counts& counts, int index) {
  Add(counts, index, -1);
  if (index < 0 || index >= static_cast<int>(counts.size())) return;
  auto& count = counts[static_cast<std::size_t>(index)];
  count = std::max<std::int16_t>(count, 0);
}

/// Counts and logs the entered roll; false if there is no room for it.
bool Record(State& state) {
  Game& game = state.game;
  if (CountTotalRolls(game) >= kLoggedRolls) return false;
  const TRoll roll{state.entry.Die1, state.entry.Die2, state.entry.EventDie};
  Add(game.DiceCount, roll.Die1 + roll.Die2, 1);
  Add(game.EventCount, roll.EventDie, 1);
  const int entry = CountTotalRolls(game);
  // Counts from a file may be negative: entry 0 and below are never written.
  if (entry >= 1 && entry <= kLoggedRolls) game.DiceLog[static_cast<std::size_t>(entry)] = roll;
  return true;
}

}  // namespace

std::int16_t CountTotalRolls(Game& game) {
  game.TotalRolls = Saturate16(std::accumulate(game.DiceCount.begin() + kLowestSum, game.DiceCount.end(), 0));
  return game.TotalRolls;
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
  if (recorded && IsAttack(state)) {
    screen.ShowAttack();
  } else {
    screen.UnlockMainWindow();
  }
  state.game.Clock[1] = 0;
  screen.CloseDiceDialog();
}

void UndoLastRoll(State& state, Screen& screen) {
  Game& game = state.game;
  const int entry = CountTotalRolls(game);
  if (entry >= 0 && entry <= kLoggedRolls) {
    TRoll& roll = game.DiceLog[static_cast<std::size_t>(entry)];
    TakeBack(game.DiceCount, roll.Die1 + roll.Die2);
    TakeBack(game.EventCount, roll.EventDie);
    roll = {};
  }
  screen.DrawDiceStats();
}

}  // namespace core
