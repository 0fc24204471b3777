// The beginning of a run, before any game is begun or loaded, and of a game: what the players have chosen takes effect,
// and all six seats get the pieces with which their kind of game starts.
#pragma once

#include <cstdint>
#include <string>

#include "game_state.h"

namespace core {

/// What holds before the settings file is read: options, keys of the event die, no language chosen, all is shown.
void SetDefaults(State& state);

/// A base game of the seats 1 to 4 without any roll. Names stay.
void BeginWithoutGame(State& state);

/// Both clocks at zero and standing.
void StopClocks(State& state);

/// What a game of a kind begins with.
struct Kind {
  std::int16_t GameType = 0;
  std::int16_t Settlements = 0;
  std::int16_t Cities = 0;
  std::int16_t WinPoints = 0;  ///< as usual
  int Theme = 0;               ///< without the second expansion
};

/// The kind of this number; none for one that only a file can bring.
const Kind* KindOf(std::int16_t gameType);

/// What was chosen for a new game.
struct NewGame {
  std::int16_t NumPlayers = kDefaultPlayers;
  std::int16_t GameType = kBaseGame;
  std::int16_t WinPoints = 0;
  Numbered<std::string, kSeats + 1> Names;  ///< by seat; those above `NumPlayers` are not looked at
  CheckValue Flottillen;
  CheckValue Scenario;
  std::string Title;
  std::string Info;
};

/// Begins the game: counts, points, pieces and titles anew, the clocks run from 0, the entry of a roll ends. The log
/// stays behind the counts, as do `GameWon` and the names of the seats that do not play. Draws nothing and leaves the
/// theme to the caller.
void StartGame(State& state, const NewGame& chosen);

/// The background theme that belongs to the game: 1 base game, 2 first expansion, 3 with the second expansion; 0 for
/// a kind that only a file can bring and that has none.
int ThemeOf(const Game& game);

}  // namespace core
