// The figures of the chart at the points where rounding or an extreme decides, and numbers as text.
#include "../../core/dice_stats.h"

#include <gtest/gtest.h>

#include "../../core/arithmetic.h"
#include "../../core/number_text.h"

namespace tests {
namespace {

using Counts = std::array<std::int16_t, 13>;

TEST(DiceStatsTest, BarUnitFillsTheRoomAndKeepsTheMarkerInside) {
  struct Case {
    const char* What;
    Counts Count;
    int Unit;
    long long MarkerOf7;
  };
  const Case cases[] = {
      {"no rolls", {}, 300, 0},
      {"one 7", {0, 0, 0, 0, 0, 0, 0, 1}, 300, 49},
      {"36 rolls as the theory wants them", {0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}, 36, 215},
      {"marker ends at the edge", {0, 0, 11, 11, 11, 11, 5}, 27, 220},
      {"marker would end beyond", {0, 0, 11, 11, 11, 11, 6}, 26, 216},
      {"500 of one sum", {0, 0, 500}, 0, 0},
      {"counts beyond any game", {0, 0, 32767, 32767, 32767, 32767}, 0, 0},
      {"only negative counts", {0, 0, -5, -5, -5, -5, -5, -5, -5, -5, -5, -5, -5}, 300, -2748},
      {"counts that cancel out", {0, 0, 5, -5}, 60, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    core::Game game;
    game.DiceCount = c.Count;
    core::ComputeDiceFigures(game);
    EXPECT_EQ(core::ChartBarUnit(game), c.Unit);
    EXPECT_EQ(core::ChartMarkerLength(game, c.Unit, 7), c.MarkerOf7);
  }
}

TEST(DiceStatsTest, ExactShareOfASumCountsAsAbove) {
  core::Game game;
  game.DiceCount = {0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1};
  core::ComputeDiceFigures(game);
  for (int sum = 2; sum <= 12; ++sum) EXPECT_TRUE(core::IsAboveShare(game, sum)) << sum;
  game.DiceCount[2] = 2;
  core::ComputeDiceFigures(game);
  EXPECT_FALSE(core::IsAboveShare(game, 7));
}

TEST(DiceStatsTest, EventShareHoldsCountsOf500) {
  core::Game game;
  game.EventCount = {0, 328, 500, 1, -7};
  EXPECT_EQ(core::EventPercent(game, 1), 0);
  game.TotalRolls = 500;
  EXPECT_EQ(core::EventPercent(game, 1), 65);
  EXPECT_EQ(core::EventPercent(game, 2), 100);
  EXPECT_EQ(core::EventPercent(game, 3), 0);
  EXPECT_EQ(core::EventPercent(game, 4), -1);
}

TEST(ArithmeticTest, DivisionRoundsTiesToEvenAndDropsTheRest) {
  struct Case {
    double Dividend, Divisor;
    long long Result;
  };
  const Case cases[] = {{2.5, 1, 2}, {3.5, 1, 4}, {-2.5, 1, -2},  {-3.5, 1, -4},  {7, 1.5, 3},   {7, 2.5, 3},
                        {8, 3.5, 2}, {-7, 2, -3}, {99.5, 100, 1}, {99.4, 100, 0}, {100, 0.5, 0}, {100, 0.51, 100}};
  for (const Case& c : cases) {
    EXPECT_EQ(core::WholeDivide(c.Dividend, c.Divisor), c.Result) << c.Dividend << " \\ " << c.Divisor;
  }
}

TEST(NumberTextTest, DecimalsFollowTheSystem) {
  struct Case {
    float Value;
    const char *OneDecimal, *Plain;
  };
  const Case cases[] = {{6.25F, "6,3", "6,25"}, {18.75F, "18,8", "18,75"}, {16.666666F, "16,7", "16,666666"},
                        {2.8F, "2,8", "2,8"},   {100, "100,0", "100"},     {0.04F, "0,0", "0,04"}};
  for (const Case& c : cases) {
    EXPECT_EQ(core::WithOneDecimal(c.Value, ","), c.OneDecimal);
    EXPECT_EQ(core::PlainText(c.Value, ","), c.Plain);
  }
  EXPECT_EQ(core::WithOneDecimal(6.25F, "."), "6.3");
}

}  // namespace
}  // namespace tests
