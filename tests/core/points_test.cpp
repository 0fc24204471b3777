// What holdings are worth, and who has won.
#include "../../core/points.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::ElementsAre;
using tests::kTitles;

TEST(Points, AddUpAllHoldingsOfEverySeatWhetherItPlaysOrNot) {
  const std::int16_t pieces[kSeats][3] = {{2}, {1, 1}, {5, 4, 3}, {-3, 0, -4}, {32767, 32767, 32767}, {-32768, -32768}};
  Game withPieces, withTitles;
  for (std::size_t seat = 1; seat <= kSeats; ++seat) {
    const auto& [settlements, cities, bonusPoints] = pieces[seat - 1];
    withPieces.Players[seat] = {.Name = "", .Settlements = settlements, .Cities = cities, .BonusPoints = bonusPoints};
    withTitles.Players[seat].*kTitles[seat - 1] = true;  // no city under the metropolises
  }
  Figures ofPieces, ofTitles;
  ComputePoints(withPieces, ofPieces);
  ComputePoints(withTitles, ofTitles);
  EXPECT_THAT(ofPieces.PlayerPoints, ElementsAre(0, 2, 3, 16, -7, 32767, -32768));
  EXPECT_THAT(ofTitles.PlayerPoints, ElementsAre(0, 2, 2, 2, 2, 2, 1));
}

TEST(Winner, IsTheFirstLeaderWithThePointsToWinWhileOneIsToBeShown) {
  // Points, whether a winner is to be shown, the winner. The third has more than the first, who has enough, too.
  const std::tuple<Numbered<std::int16_t, 7>, bool, int> cases[] = {{{0, 9, 9, 9, 2, 2, 2}, true, 0},
                                                                    {{0, 2, 10, 3, 10, 2, 2}, true, 2},
                                                                    {{0, 10, 2, 11, 2, 2, 2}, true, 3},
                                                                    {{0, 2, 2, 2, 2, 2, 12}, true, 6},
                                                                    {{0, 2, 2, 2, 2, 2, 12}, false, 0}};
  for (const auto& [points, show, winner] : cases) {
    State state;
    state.figures.PlayerPoints = points;
    FindLeaders(state.figures);
    state.game.WinPoints = 10;
    state.settings.ShowWinner = show;
    EXPECT_EQ(WinningSeat(state).value_or(0), winner) << winner;
  }
}

}  // namespace
}  // namespace core
