// States that no game would lead to but a file can hold: any number in every field, any bytes in every text.
#pragma once

#include <random>

#include "../../core/game_state.h"
#include "../../storage/code_page.h"

namespace tests {

class RandomState {
 public:
  explicit RandomState(unsigned seed) : random_(seed) {}

  core::State Next() {
    core::State state;
    core::Game& game = state.game;
    for (core::TPlayer& player : game.Players) {
      player = {Text(), Number(), Number(), Flag(), Flag(), Flag(), Flag(), Flag(), Number(), Flag(), Flag()};
    }
    for (std::int16_t& count : game.DiceCount) count = Number();
    for (std::int16_t& count : game.EventCount) count = Number();
    for (core::TRoll& roll : game.DiceLog) roll = {Number(), Number(), Number()};
    game.GameType = static_cast<std::int16_t>(Flag() ? core::kBaseGame : core::kFirstExpansion);
    for (std::int16_t* number : {&game.OptFlottillen.Value, &game.OptScenario.Value, &state.settings.SiegAnzeige.Value,
                                 &game.WinPoints, &game.Clock[0], &game.Clock[1], &game.NumPlayers}) {
      *number = Number();
    }
    game.GameTitle = Text();
    game.GameInfo = Text();
    return state;
  }
  std::int16_t Number() { return static_cast<std::int16_t>(random_()); }
  bool Flag() { return random_() % 2 == 0; }
  /// Up to 20 characters, of all but the carriage return.
  std::string Text() {
    std::string bytes(random_() % 21, 0);
    for (char& byte : bytes) byte = static_cast<char>(random_());
    std::erase(bytes, '\r');
    return storage::FromCodePage(bytes);
  }

 private:
  std::mt19937 random_;
};

}  // namespace tests
