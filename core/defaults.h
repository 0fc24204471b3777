// What holds at the start of a run, before any game is begun or loaded. Called by the start-up sequence only.
#pragma once

#include "game_state.h"

namespace core {

/// Theme, view of the standing, options and win points of a run without settings file.
void SetBasicDefaults(State& state);
/// The keys of the event die, and that no language has been chosen.
void SetKeyAndLanguageDefaults(State& state);
/// Four players and both clocks shown.
void SetDisplayDefaults(State& state);
/// A base game of the seats 1 to 4 without any roll. Names stay.
void BeginWithoutGame(State& state);
/// Both clocks at zero and standing.
void StopClocks(State& state);

/// The settings that hold where the settings file says nothing: all is shown.
void SetSettingsDefaults(State& state);

}  // namespace core
