#include "../../core/new_game.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::Each;
using testing::ElementsAre;

/// A new game of three, begun when another was in full swing.
State Started(std::int16_t gameType, std::int16_t players = 3) {
  State state;
  state.game = tests::SeatedGame(6, true);
  for (TPlayer& player : state.game.Players) player.Settlements = player.Cities = player.BonusPoints = 4;
  state.game.DiceCount.fill(9);
  state.game.EventCount.fill(8);
  state.game.DiceLog.fill({1, 2, 3});
  state.game.Clock = {500, 50};
  state.game.GameWon = true;
  state.entry.DiceEntryStage = 2;
  StartGame(
      state,
      {players, gameType, 15, {"", "Ada", "Björn", "", "Dora", "Emil", "Fritz"}, kOn, kOff, "Sunday", " at home"});
  return state;
}

TEST(StartGame, GivesAllSixSeatsThePiecesOfTheirKindOfGame) {
  const std::array<std::int16_t, 4> cases[] = {{2, 2, 0, 2}, {3, 1, 1, 3}, {7, 4, 4, 7}};
  const std::string names[] = {"", "Ada", "Björn", "", "P4", "P5", "P6"};
  for (const auto& [gameType, settlements, cities, points] : cases) {
    const Game game = Started(gameType).game;
    for (std::size_t seat = 1; seat <= kSeats; ++seat) {
      const TPlayer expected{.Name = names[seat], .Settlements = settlements, .Cities = cities, .Active = seat <= 3};
      EXPECT_EQ(game.Players[seat], expected) << "seat " << seat << ", kind of game " << gameType;
      EXPECT_EQ(game.PlayerPoints[seat], points);
    }
  }
}

TEST(StartGame, TakesTheChoicesAndClearsTheCountsButKeepsTheLog) {
  const State state = Started(kFirstExpansion);
  const Game& game = state.game;
  EXPECT_EQ(game.GameTitle + game.GameInfo, "Sunday at home");
  EXPECT_TRUE(game.OptFlottillen.IsOn() && game.OptScenario.IsOff());
  EXPECT_THAT(game.EventCount, ElementsAre(8, 0, 0, 0, 0)) << "the rolls without event die are nobody's to reset";
  EXPECT_THAT(WithoutPlaceZero(game.DiceCount), Each(0));
  EXPECT_THAT(game.Clock, Each(0));
  EXPECT_TRUE(game.ClockRunning && game.GameWon);
  EXPECT_EQ(state.entry.DiceEntryStage, 0);
  EXPECT_THAT(game.DiceLog, Each(TRoll{1, 2, 3}));
}

TEST(StartGame, KeepsToTheSeatsWhateverNumberOfPlayersIsAskedFor) {
  for (const auto players : std::to_array<std::int16_t>({-32768, 0, 7})) {
    const TPlayer last = Started(kBaseGame, players).game.Players[6];
    EXPECT_EQ(last.Active, players > 0) << players;
    EXPECT_EQ(last.Name, players > 0 ? "Fritz" : "P6");
  }
}

TEST(Theme, FollowsTheSecondExpansionBeforeTheKindOfGame) {
  const std::array<std::int16_t, 3> cases[] = {{2, 0, 1}, {3, 0, 2}, {2, 1, 3}, {7, 1, 3}, {7, 0, 0}, {3, -1, 0}};
  for (const auto& [gameType, flottillen, theme] : cases) {
    Game game;
    game.GameType = gameType;
    game.OptFlottillen = CheckValue{flottillen};
    EXPECT_EQ(ThemeOf(game), theme) << gameType << ", " << flottillen;
  }
}

}  // namespace
}  // namespace core
