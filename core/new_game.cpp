#include "new_game.h"

#include <algorithm>

namespace core {
namespace {

constexpr Kind kKinds[] = {
    {.GameType = kBaseGame, .Settlements = 2, .Cities = 0, .WinPoints = 10, .Theme = 1},
    {.GameType = kFirstExpansion, .Settlements = 1, .Cities = 1, .WinPoints = 13, .Theme = 2},
};
constexpr int kSecondExpansionTheme = 3;

void TakeChoices(Game& game, const NewGame& chosen) {
  game.NumPlayers = chosen.NumPlayers;
  game.GameType = chosen.GameType;
  game.WinPoints = chosen.WinPoints;
  game.OptFlottillen = chosen.Flottillen;
  game.OptScenario = chosen.Scenario;
  game.GameTitle = chosen.Title;
  game.GameInfo = chosen.Info;
  for (int seat = 1; seat <= SeatsPlayed(game); ++seat) game.Players[seat].Name = chosen.Names[seat];
}

void ClearCounts(State& state) {
  Game& game = state.game;
  std::ranges::fill(WithoutPlaceZero(game.DiceCount), std::int16_t{0});
  std::ranges::fill(WithoutPlaceZero(game.EventCount), std::int16_t{0});
  // The number of a kind of game is what its starting pieces are worth.
  std::ranges::fill(WithoutPlaceZero(state.figures.PlayerPoints), game.GameType);
}

/// The player of a seat with nothing but the pieces of the start; a kind without such a rule leaves the pieces.
TPlayer AtStart(const TPlayer& before, std::int16_t gameType, bool active) {
  TPlayer player{.Name = before.Name, .Settlements = before.Settlements, .Cities = before.Cities, .Active = active};
  if (const Kind* kind = KindOf(gameType)) {
    player.Settlements = kind->Settlements;
    player.Cities = kind->Cities;
  }
  return player;
}

}  // namespace

const Kind* KindOf(std::int16_t gameType) {
  const auto kind = std::ranges::find(kKinds, gameType, &Kind::GameType);
  return kind == std::end(kKinds) ? nullptr : kind;
}

void SetDefaults(State& state) {
  state.entry.DiceEntryStage = 0;
  state.game.OptFlottillen = kOff;
  state.game.OptScenario = kOff;
  state.game.NumPlayers = kDefaultPlayers;
  state.AboutFrame = 0;
  state.settings.EventHotkey = {0, 'P', 'H', 'W', 'B'};
  state.settings.ShowGameTime = true;
  state.settings.ShowPlayerTime = true;
  state.settings.Contrast = kOn;
  state.language.Languages[0] = kNoLanguageYet;
  state.settings.ShowLast6 = true;
  state.settings.ShowWinner = true;
  state.settings.ShowBarbarians = true;
  state.game.WinPoints = KindOf(kBaseGame)->WinPoints;
  state.settings.AutoHG = kOn;
  state.settings.HG = 1;
  state.settings.SiegAnzeige = kOn;
}

void BeginWithoutGame(State& state) {
  for (int seat = 1; seat <= kSeats; ++seat) {
    TPlayer& player = state.game.Players[seat];
    player = AtStart(player, kBaseGame, seat <= kDefaultPlayers);
  }
  state.asked.GameWon = false;
  state.game.GameType = kBaseGame;
  state.game.DiceLog.fill(TRoll{});
}

void StopClocks(State& state) {
  state.game.ClockRunning = false;
  state.game.Clock = {0, 0};
}

void StartGame(State& state, const NewGame& chosen) {
  Game& game = state.game;
  TakeChoices(game, chosen);
  ClearCounts(state);
  state.entry.DiceEntryStage = 0;
  for (int seat = 1; seat <= kSeats; ++seat) {
    TPlayer& player = game.Players[seat];
    player = AtStart(player, game.GameType, seat <= game.NumPlayers);
  }
  game.ClockRunning = true;
  game.Clock = {0, 0};
}

int ThemeOf(const Game& game) {
  if (game.OptFlottillen.IsOn()) return kSecondExpansionTheme;
  const Kind* kind = game.OptFlottillen.IsOff() ? KindOf(game.GameType) : nullptr;
  return kind ? kind->Theme : 0;
}

}  // namespace core
