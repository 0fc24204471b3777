#include "../../core/new_game.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::Each;

TEST(StartGame, BeginsAllSeatsAnewAndClearsTheCountsButKeepsTheLog) {
  State state;
  Game& game = state.game;
  game = tests::SeatedGame(6, true);
  for (TPlayer& player : game.Players) player.Settlements = player.Cities = player.BonusPoints = 4;
  game.DiceCount.fill(9);
  game.EventCount.fill(8);
  game.DiceLog.fill({1, 2, 3});
  game.Clock = {500, 50};
  state.asked.GameWon = true;
  StartGame(state, {3, kFirstExpansion, 15, {"", "Ada", "Bo", "", "Dora", "Emil", "Fritz"}, kOn, kOff, "", ""});
  EXPECT_EQ(game.Players[2], (TPlayer{.Name = "Bo", .Settlements = 1, .Cities = 1, .Active = true}));
  EXPECT_EQ(game.Players[6], (TPlayer{.Name = "P6", .Settlements = 1, .Cities = 1}));
  EXPECT_THAT(game.EventCount, testing::ElementsAre(8, 0, 0, 0, 0)) << "rolls without event die stay";
  EXPECT_THAT(WithoutPlaceZero(game.DiceCount), Each(0));
  EXPECT_THAT(game.Clock, Each(0));
  EXPECT_TRUE(game.ClockRunning && state.asked.GameWon);
  EXPECT_THAT(game.DiceLog, Each(TRoll{1, 2, 3}));
}

}  // namespace
}  // namespace core
