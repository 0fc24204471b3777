// The four pictures that tell of what kind a game is: the game that runs, or the one that is being set up.
#pragma once

#include "../core/game_state.h"
#include "../platform/controls.h"

namespace windows {

struct GameStatus {
  bool BaseGame = true;
  bool Flottillen = false;
  bool Scenario = false;
  int Players = 0;
};

/// Shows what the game has and clears the others; a screen reader hears it in the words of the language.
void ShowGameStatus(const platform::ControlArray<platform::PictureBox>& pictures, const GameStatus& status,
                    const core::State& state);

}  // namespace windows
