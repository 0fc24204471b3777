#include "defaults.h"

namespace core {

void SetBasicDefaults(State& state) {
  state.entry.DiceEntryStage = 0;
  state.settings.AutoHG = kOn;
  state.settings.HG = 1;
  state.settings.SiegAnzeige = kOn;
  state.game.OptFlottillen = kOff;
  state.game.OptScenario = kOff;
  state.game.WinPoints = 10;
  state.AboutFrame = 0;
}

void SetKeyAndLanguageDefaults(State& state) {
  state.settings.EventHotkey = {0, 'P', 'H', 'W', 'B'};
  state.language.Languages[0] = kNoLanguageYet;
}

void SetDisplayDefaults(State& state) {
  state.game.NumPlayers = kDefaultPlayers;
  state.settings.ShowGameTime = true;
  state.settings.ShowPlayerTime = true;
  state.settings.Contrast = kOn;
}

void BeginWithoutGame(State& state) {
  for (int seat = 1; seat <= kSeats; ++seat) {
    TPlayer& player = state.game.Players[static_cast<std::size_t>(seat)];
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
