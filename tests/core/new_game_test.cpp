#include "../../core/new_game.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::Each;

/// A new game of three, begun when another was in full swing.
Game Started(std::int16_t players = 3) {
  State state;
  state.game = tests::SeatedGame(6, true);
  for (TPlayer& player : state.game.Players) player.Settlements = player.Cities = player.BonusPoints = 4;
  state.game.DiceCount.fill(9);
  state.game.EventCount.fill(8);
  state.game.DiceLog.fill({1, 2, 3});
  state.game.Clock = {500, 50};
  state.game.GameWon = true;
  StartGame(state, {players, kFirstExpansion, 15, {"", "Ada", "Bo", "", "Dora", "Emil", "Fritz"}, kOn, kOff, "", ""});
  return state.game;
}

TEST(StartGame, ClearsTheCountsButKeepsTheLog) {
  const Game game = Started();
  EXPECT_THAT(game.EventCount, testing::ElementsAre(8, 0, 0, 0, 0)) << "rolls without event die stay";
  EXPECT_THAT(WithoutPlaceZero(game.DiceCount), Each(0));
  EXPECT_THAT(game.Clock, Each(0));
  EXPECT_TRUE(game.ClockRunning && game.GameWon);
  EXPECT_THAT(game.DiceLog, Each(TRoll{1, 2, 3}));
}

TEST(StartGame, BeginsAllSixSeatsAnewWhateverNumberOfPlayersIsAskedFor) {
  for (const auto players : std::to_array<std::int16_t>({-32768, 0, 7})) {
    const bool plays = players > 0;
    const TPlayer expected{.Name = plays ? "Fritz" : "P6", .Settlements = 1, .Cities = 1, .Active = plays};
    EXPECT_EQ(Started(players).Players[6], expected) << players;
  }
}

}  // namespace
}  // namespace core
