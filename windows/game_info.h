// What the new-game dialog and the game info have in common: the frame with title and info line, and the four pictures
// that show the kind of game.
#pragma once

#include "../core/game_state.h"
#include "../platform/controls.h"

namespace windows {

/// The frame with the title and the info line of a game.
struct GameInfoFrame {
  GameInfoFrame(platform::Container* form, platform::Place place, const core::State& state);

  platform::Frame fraSpielInfo;
  platform::Label lblC;
  platform::TextBox txtSpieltitel;
  platform::Label lblD;
  platform::TextBox txtSpielinfo;

  /// Takes the captions from the language.
  void SetCaptions(const core::State& state);
};

struct GameStatus {
  bool BaseGame = true;
  bool Flottillen = false;
  bool Scenario = false;
  int Players = 0;
};

/// Shows what the game has and clears the other pictures; a screen reader hears it in the words of the language.
void ShowGameStatus(const platform::ControlArray<platform::PictureBox>& pictures, const GameStatus& status,
                    const core::State& state);

}  // namespace windows
