#include "defaults.h"

namespace core {

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

}  // namespace core
