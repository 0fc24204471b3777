// States that no game would lead to but a file can hold: any number in every field, any bytes in every text.
#pragma once

#include <algorithm>
#include <random>

#include "../../core/game_state.h"
#include "../../storage/code_page.h"

namespace tests {

inline core::State RandomState(std::mt19937& random) {
  const auto flag = [&random] { return random() % 2 == 0; };
  const auto number = [&random] { return static_cast<std::int16_t>(random()); };
  const auto text = [&random] {  // up to 20 characters, of all but the carriage return
    std::string bytes(random() % 21, 0);
    std::ranges::generate(bytes, [&random] { return static_cast<char>(random()); });
    std::erase(bytes, '\r');
    return storage::FromCodePage(bytes);
  };
  core::State state;
  core::Game& game = state.game;
  for (core::TPlayer& player : game.Players) {
    player = {text(), number(), number(), flag(), flag(), flag(), flag(), flag(), number(), flag(), flag()};
  }
  std::ranges::generate(game.DiceCount, number);
  std::ranges::generate(game.EventCount, number);
  for (core::TRoll& roll : game.DiceLog) roll = {number(), number(), number()};
  game.GameType = static_cast<std::int16_t>(flag() ? core::kBaseGame : core::kFirstExpansion);
  for (std::int16_t* field : {&game.OptFlottillen.Value, &game.OptScenario.Value, &state.settings.SiegAnzeige.Value,
                              &game.WinPoints, &game.Clock[0], &game.Clock[1], &game.NumPlayers}) {
    *field = number();
  }
  for (std::string* field : {&game.GameTitle, &game.GameInfo}) *field = text();
  return state;
}

}  // namespace tests
