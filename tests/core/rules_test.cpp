// What a game starts with, what a player may do, what holdings are worth, and who has won.
#include <gmock/gmock.h>

#include "../../core/player_actions.h"
#include "../../core/points.h"

namespace core {
namespace {

using testing::ElementsAre;

using Title = bool TPlayer::*;
constexpr Title kTitles[] = {&TPlayer::LongestRoad,     &TPlayer::LargestArmy,       &TPlayer::PoliticsMetropolis,
                             &TPlayer::TradeMetropolis, &TPlayer::ScienceMetropolis, &TPlayer::Merchant};

/// What the action makes of so many settlements and cities: "5 0", or the texts of the refusal: "57/59".
std::string After(Action action, std::int16_t settlements, std::int16_t cities) {
  Game game;
  TPlayer& player = game.Players[6];
  const TPlayer before = player = {.Name = "Ada", .Settlements = settlements, .Cities = cities};
  const auto refusal = ApplyPlayerAction(game, {.CurrentPlayer = 6, .ActionCode = action});
  EXPECT_TRUE(!refusal || player == before);
  if (refusal) return std::to_string(refusal->MessageText) + "/" + std::to_string(refusal->TitleText);
  return std::to_string(player.Settlements) + " " + std::to_string(player.Cities);
}

TEST(PlayerActions, MovePiecesWithinTheLimitsButHoldNobodyBackWhoIsAboveThem) {
  EXPECT_EQ(After(kBuildSettlement, 5, 0), "57/59");
  EXPECT_EQ(After(kBuildSettlement, 6, 0), "7 0");
  EXPECT_EQ(After(kBuildCity, 5, 3), "4 4");
  EXPECT_EQ(After(kBuildCity, 0, 4), "58/60") << "the settlements are looked at first";
  EXPECT_EQ(After(kBuildCity, 2, 4), "59/60");
  EXPECT_EQ(After(kBuildCity, -32768, 32767), "-32768 32767");
  EXPECT_EQ(After(kLoseCity, 6, 0), "62/63");
  EXPECT_EQ(After(kLoseCity, 5, 1), "6 0");
}

TEST(Points, AddUpAllHoldingsOfEverySeatWhetherItPlaysOrNot) {
  const std::int16_t pieces[kSeats][3] = {{2}, {1, 1}, {5, 4, 3}, {-3, 0, -4}, {32767, 32767, 32767}, {-32768, -32768}};
  Game withPieces, withTitles;
  for (int seat = 1; seat <= kSeats; ++seat) {
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
  const std::tuple<decltype(Figures::PlayerPoints), bool, int> cases[] = {{{0, 9, 9, 9, 2, 2, 2}, true, 0},
                                                                          {{0, 2, 10, 3, 10, 2, 2}, true, 2},
                                                                          {{0, 10, 2, 11, 2, 2, 2}, true, 3},
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
