#include "new_game.h"

#include <algorithm>

namespace core {
namespace {

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

void ClearCounts(Game& game) {
  std::ranges::fill(WithoutPlaceZero(game.DiceCount), std::int16_t{0});
  std::ranges::fill(WithoutPlaceZero(game.EventCount), std::int16_t{0});
  // The number of a kind of game is what its starting pieces are worth.
  std::ranges::fill(WithoutPlaceZero(game.PlayerPoints), game.GameType);
}

/// The player of a seat with nothing but the pieces of the start; a kind without such a rule leaves the pieces.
TPlayer AtStart(const TPlayer& before, std::int16_t gameType, bool active) {
  TPlayer player{.Name = before.Name, .Settlements = before.Settlements, .Cities = before.Cities, .Active = active};
  if (gameType == kBaseGame) {
    player.Settlements = 2;
    player.Cities = 0;
  } else if (gameType == kFirstExpansion) {
    player.Settlements = 1;
    player.Cities = 1;
  }
  return player;
}

}  // namespace

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
  SetSettingsDefaults(state);
}

void BeginWithoutGame(State& state) {
  for (int seat = 1; seat <= kSeats; ++seat) {
    TPlayer& player = state.game.Players[seat];
    player = TPlayer{.Name = player.Name, .Settlements = 2, .Active = seat <= kDefaultPlayers};
  }
  state.game.GameWon = false;
  state.game.GameType = kBaseGame;
  state.game.DiceLog.fill(TRoll{});
}

void StopClocks(State& state) {
  state.game.ClockRunning = false;
  state.game.Clock = {0, 0};
}

void SetSettingsDefaults(State& state) {
  state.settings.ShowLast6 = true;
  state.settings.ShowWinner = true;
  state.settings.ShowBarbarians = true;
  state.game.WinPoints = 10;
  state.settings.AutoHG = kOn;
  state.settings.HG = 1;
  state.settings.SiegAnzeige = kOn;
}

void StartGame(State& state, const NewGame& chosen) {
  Game& game = state.game;
  TakeChoices(game, chosen);
  ClearCounts(game);
  state.entry.DiceEntryStage = 0;
  for (int seat = 1; seat <= kSeats; ++seat) {
    TPlayer& player = game.Players[seat];
    player = AtStart(player, game.GameType, seat <= game.NumPlayers);
  }
  game.ClockRunning = true;
  game.Clock = {0, 0};
}

int ThemeOf(const Game& game) {
  if (game.OptFlottillen.IsOn()) return 3;
  if (!game.OptFlottillen.IsOff()) return 0;
  if (game.GameType == kBaseGame) return 1;
  return game.GameType == kFirstExpansion ? 2 : 0;
}

}  // namespace core
