#include "../../core/points.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::ElementsAre;

using SixPoints = std::array<std::int16_t, kSeats>;

/// A game whose seats have these points, with its leaders found.
State WithPoints(const SixPoints& points) {
  State state;
  state.settings.ShowWinner = true;
  std::ranges::copy(points, WithoutPlaceZero(state.game.PlayerPoints).begin());
  FindLeaders(state.game);
  return state;
}

TEST(Points, AddUpAllHoldingsOfEverySeat) {
  const std::vector<std::pair<TPlayer, std::int16_t>> cases{
      {{.Name = "", .Settlements = 2}, 2},
      {{.Name = "", .Settlements = 1, .Cities = 1}, 3},
      {{.Name = "", .Settlements = 5, .Cities = 4, .LongestRoad = true, .BonusPoints = 3}, 18},
      {{.Name = "",
        .Cities = 1,
        .PoliticsMetropolis = true,
        .TradeMetropolis = true,
        .ScienceMetropolis = true,
        .Merchant = true},
       9},
      {{.Name = "", .LargestArmy = true}, 2},
      {{.Name = "", .TradeMetropolis = true}, 2},  // no city under it
      {{.Name = "", .Merchant = true}, 1},
      {{.Name = "", .Settlements = -3, .BonusPoints = -4}, -7},
      {{.Name = "", .Settlements = 32767, .Cities = 32767, .BonusPoints = 32767}, 32767},
      {{.Name = "", .Settlements = -32768, .Cities = -32768, .Merchant = true}, -32768},
  };
  for (const auto& [holdings, points] : cases) {
    for (std::size_t seat = 1; seat <= kSeats; ++seat) {
      Game game;  // nobody is marked as playing
      game.Players[seat] = holdings;
      std::array<std::int16_t, kSeats + 1> expected{};
      expected[seat] = points;
      ComputePoints(game);
      EXPECT_EQ(game.PlayerPoints, expected);
    }
  }
}

TEST(Points, AreBroughtIntoTwoDigits) {
  State state = WithPoints({-32768, -1, 0, 99, 120, 32767});
  ClampPoints(state.game);
  EXPECT_THAT(state.game.PlayerPoints, ElementsAre(0, 0, 0, 0, 99, 99, 99));
}

TEST(Leaders, AreAllWhomNobodyExceeds) {
  const auto leaders = [](const SixPoints& points) {
    std::string seats;
    const State state = WithPoints(points);
    for (int seat = 1; seat <= kSeats; ++seat) {
      if (state.game.LeaderFlag[static_cast<std::size_t>(seat)]) seats += std::to_string(seat);
    }
    return seats;
  };
  EXPECT_EQ(leaders({2, 2, 2, 2, 2, 2}), "123456");
  EXPECT_EQ(leaders({2, 2, 5, 2, 5, 4}), "35");
  EXPECT_EQ(leaders({2, 2, 2, 2, 2, 3}), "6");
  EXPECT_EQ(leaders({-5, -4, -9, -9, -9, -9}), "2") << "place 0 with its 0 points takes no part";
  EXPECT_FALSE(WithPoints({}).game.LeaderFlag[0]);
}

TEST(Winner, IsTheFirstLeaderWithThePointsToWin) {
  struct Case {
    SixPoints Points;
    std::int16_t WinPoints;
    std::optional<int> Seat;
  };
  const std::vector<Case> cases{
      {{9, 9, 9, 2, 2, 2}, 10, {}},    {{2, 10, 3, 10, 2, 2}, 10, 2},
      {{10, 2, 11, 2, 2, 2}, 10, 3},  // who has 10 does not lead
      {{2, 2, 2, 2, 2, 12}, 10, 6},    {{2, 2, 2, 2, 2, 2}, 2, 1},
      {{0, 0, 0, 0, 0, 0}, -32768, 1},
  };
  for (const Case& each : cases) {
    State state = WithPoints(each.Points);
    state.game.WinPoints = each.WinPoints;
    EXPECT_EQ(WinningSeat(state), each.Seat) << testing::PrintToString(each.Points);
    EXPECT_EQ(WinningSeat(state), each.Seat) << "a win is not remembered";
    state.settings.ShowWinner = false;
    EXPECT_EQ(WinningSeat(state), std::nullopt);
  }
}

}  // namespace
}  // namespace core
