// What holds at the start of a run, before any game is begun or loaded. Called by the start-up sequence only.
#pragma once

#include "game_state.h"

namespace core {

/// What holds before the settings file is read: options, keys of the event die, no language chosen, clocks shown.
void SetDefaults(State& state);
/// A base game of the seats 1 to 4 without any roll. Names stay.
void BeginWithoutGame(State& state);
/// Both clocks at zero and standing.
void StopClocks(State& state);

/// The settings that hold where the settings file says nothing: all is shown.
void SetSettingsDefaults(State& state);

}  // namespace core
