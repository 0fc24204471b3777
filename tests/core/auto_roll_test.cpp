// The two ways of rolling by the program, with scripted random numbers.
#include "../../core/auto_roll.h"

#include <gtest/gtest.h>

#include <deque>

#include "../recording_screen.h"

namespace tests {
namespace {

core::State RollWith(std::deque<double> numbers, core::EventDieOf command) {
  core::State state;
  state.game.GameType = core::kBaseGame;
  RecordingScreen screen(state);
  const auto next = [&numbers] {
    const double number = numbers.at(0);
    numbers.pop_front();
    return number;
  };
  core::AutoRoll(state, screen, next, command);
  EXPECT_TRUE(numbers.empty());
  return state;
}

TEST(AutoRollTest, MenuKnowsThreeShipsOnSixSidesAndMouseFourEvenFaces) {
  struct Case {
    double Random;
    int Menu, Mouse;
  };
  const Case cases[] = {{0, 1, 1},    {0.16, 1, 1}, {0.17, 2, 1}, {0.249, 2, 1}, {0.25, 2, 2}, {0.34, 3, 2},
                        {0.49, 3, 2}, {0.5, 4, 3},  {0.67, 4, 3}, {0.749, 4, 3}, {0.75, 4, 4}, {0.999999, 4, 4}};
  for (const Case& c : cases) {
    EXPECT_EQ(RollWith({0, 0, c.Random}, core::EventDieOf::Menu).entry.EventDie, c.Menu) << c.Random;
    EXPECT_EQ(RollWith({0, 0, c.Random}, core::EventDieOf::Mouse).entry.EventDie, c.Mouse) << c.Random;
  }
}

TEST(AutoRollTest, EachDieHasItsOwnNumberAndTheRollIsLoggedInAnyGame) {
  EXPECT_EQ(RollWith({0.999999, 0.5, 0.25}, core::EventDieOf::Menu).game.DiceLog[1], (core::TRoll{6, 4, 2}));
  EXPECT_EQ(RollWith({0.16, 0.17, 0.99}, core::EventDieOf::Mouse).game.EventCount[4], 1);
}

}  // namespace
}  // namespace tests
