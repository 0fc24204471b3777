// What holdings are worth, who leads, who has won and how the players stand.
#include "../../core/points.h"

#include <gmock/gmock.h>

#include "../../core/ranking.h"
#include "seated_game.h"

namespace core {
namespace {

using testing::ElementsAre;
using tests::kTitles;
using tests::SeatedGame;

using SixPoints = std::array<std::int16_t, kSeats>;

/// A game of so many players whose seats have these points, with its leaders found.
State WithPoints(const SixPoints& points, int players = kSeats) {
  State state;
  state.game = SeatedGame(players);
  std::ranges::copy(points, WithoutPlaceZero(state.game.PlayerPoints).begin());
  FindLeaders(state.game);
  return state;
}

TEST(Points, AddUpAllHoldingsOfEverySeatWhetherItPlaysOrNot) {
  const std::int16_t pieces[kSeats][3] = {{2}, {1, 1}, {5, 4, 3}, {-3, 0, -4}, {32767, 32767, 32767}, {-32768, -32768}};
  Game withPieces, withTitles;
  for (std::size_t seat = 1; seat <= kSeats; ++seat) {
    const auto& [settlements, cities, bonusPoints] = pieces[seat - 1];
    withPieces.Players[seat] = {.Name = "", .Settlements = settlements, .Cities = cities, .BonusPoints = bonusPoints};
    withTitles.Players[seat].*kTitles[seat - 1] = true;  // no city under the metropolises
  }
  ComputePoints(withPieces);
  ComputePoints(withTitles);
  EXPECT_THAT(withPieces.PlayerPoints, ElementsAre(0, 2, 3, 16, -7, 32767, -32768));
  EXPECT_THAT(withTitles.PlayerPoints, ElementsAre(0, 2, 2, 2, 2, 2, 1));
}

TEST(Points, AreBroughtIntoTwoDigits) {
  State state = WithPoints({-32768, -1, 0, 99, 100, 32767});
  ClampPoints(state.game);
  EXPECT_THAT(state.game.PlayerPoints, ElementsAre(0, 0, 0, 0, 99, 99, 99));
}

TEST(Leaders, AreAllWhomNobodyExceeds) {
  EXPECT_THAT(WithPoints({2, 2, 5, 2, 5, 4}, 2).game.LeaderFlag, ElementsAre(0, 0, 0, 1, 0, 1, 0));
  EXPECT_THAT(WithPoints({-5, -4, -9, -9, -9, -9}).game.LeaderFlag, ElementsAre(0, 0, 1, 0, 0, 0, 0));
}

TEST(Winner, IsTheFirstLeaderWithThePointsToWinWhileOneIsToBeShown) {
  const auto winner = [](const SixPoints& points, std::int16_t winPoints, bool show = true) {
    State state = WithPoints(points);
    state.game.WinPoints = winPoints;
    state.settings.ShowWinner = show;
    return WinningSeat(state).value_or(0);
  };
  EXPECT_EQ(winner({9, 9, 9, 2, 2, 2}, 10), 0);
  EXPECT_EQ(winner({2, 10, 3, 10, 2, 2}, 10), 2);
  EXPECT_EQ(winner({10, 2, 11, 2, 2, 2}, 10), 3) << "who has 10 does not lead";
  EXPECT_EQ(winner({2, 2, 2, 2, 2, 12}, 10), 6);
  EXPECT_EQ(winner({2, 2, 2, 2, 2, 12}, 10, false), 0);
  EXPECT_EQ(winner({}, -32768), 1);
}

/// "1.P3=8 2.P2=5 2.P1=5-": ranks, names and points, a "-" behind a seat that does not play.
std::string Standing(const SixPoints& sixPoints, int players) {
  std::string standing;
  for (const auto& [rank, name, active, points] : RankPlayers(WithPoints(sixPoints, players).game)) {
    standing += std::to_string(rank) + "." + name + "=" + std::to_string(points) + (active ? " " : "- ");
  }
  return standing;
}

TEST(Ranking, OrdersByPointsLetsEqualsShareARankAndCountsNothingForWhoDoesNotPlay) {
  EXPECT_EQ(Standing({1, 2, 3, 99, 99, 99}, 3), "1.P3=3 2.P2=2 3.P1=1 ");
  EXPECT_EQ(Standing({3, 7, 3, 7, 1, 9}, 6), "1.P6=9 2.P2=7 2.P4=7 4.P1=3 4.P3=3 6.P5=1 ");
  EXPECT_EQ(Standing({-4, -3}, 2), "1.P3=0- 1.P4=0- ");
}

}  // namespace
}  // namespace core
