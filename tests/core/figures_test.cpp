// The figures of chart and clocks where rounding or an extreme decides, and numbers as text.
#include "../../core/dice_stats.h"

#include <gmock/gmock.h>

#include "../../core/clock.h"
#include "../../core/numbers.h"

namespace tests {
namespace {

using testing::ElementsAre;
using Counts = core::Numbered<std::int16_t, 13>;

core::Figures FiguresOf(const Counts& counts) {
  core::Game game;
  game.DiceCount = counts;
  core::Figures figures;
  core::ComputeDiceFigures(game, figures);
  return figures;
}

TEST(DiceStatsTest, BarUnitFillsTheRoomAndKeepsTheMarkerInside) {
  const std::tuple<const char*, Counts, int, long long> cases[] = {
      {"marker ends at the edge", {0, 0, 11, 11, 11, 11, 5}, 27, 220},
      {"marker would end beyond", {0, 0, 11, 11, 11, 11, 6}, 26, 216},
      {"counts beyond any game", {0, 0, 32767, 32767, 32767, 32767}, 0, 0},
      {"only negative counts", {0, 0, -5, -5, -5, -5, -5, -5, -5, -5, -5, -5, -5}, 300, -2748},
      {"counts that cancel out", {0, 0, 5, -5}, 60, 0}};
  for (const auto& [what, counts, unit, markerOf7] : cases) {
    EXPECT_EQ(core::ChartBarUnit(FiguresOf(counts)), unit) << what;
    EXPECT_EQ(core::ChartMarkerLength(FiguresOf(counts), unit, 7), markerOf7) << what;
  }
}

TEST(DiceStatsTest, ExactShareOfASumCountsAsAboveAndALittleLessDoesNot) {
  const core::Figures exact = FiguresOf({0, 0, 1, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1});
  for (int sum = 2; sum <= 12; ++sum) EXPECT_TRUE(core::IsAboveShare(exact, sum)) << sum;
  EXPECT_FALSE(core::IsAboveShare(FiguresOf({0, 0, 2, 2, 3, 4, 5, 6, 5, 4, 3, 2, 1}), 7));
  core::Figures itself;
  itself.DicePercent[7] = 16.66F;
  EXPECT_FALSE(core::IsAboveShare(itself, 7));
}

TEST(ArithmeticTest, DivisionRoundsTiesToEvenAndDropsTheRest) {
  const std::tuple<double, double, int> cases[] = {{2.5, 1, 2}, {3.5, 1, 4}, {-2.5, 1, -2}, {7, 2.5, 3},
                                                   {8, 3.5, 2}, {-7, 2, -3}, {9, 0.5, 0}};
  for (const auto& [dividend, divisor, result] : cases)
    EXPECT_EQ(core::WholeDivide(dividend, divisor), result) << dividend;
}

TEST(NumberTextTest, DecimalsFollowTheSystem) {
  const std::tuple<float, std::string, std::string> cases[] = {
      {6.25F, "6,3", "6,25"}, {16.666666F, "16,7", "16,666666"}, {100, "100,0", "100"}};
  for (const auto& [value, oneDecimal, plain] : cases) {
    EXPECT_EQ(core::WithOneDecimal(value, ","), oneDecimal);
    EXPECT_EQ(core::PlainText(value, ","), plain);
  }
}

TEST(ClockTest, CountsBothClocksUpToTheirEndWhileTheyRun) {
  core::Game game;
  game.Clock = {32766, -1};
  core::Tick(game);
  EXPECT_THAT(game.Clock, ElementsAre(32766, -1)) << "the clocks stand";
  game.ClockRunning = true;
  core::Tick(game);
  core::Tick(game);
  EXPECT_THAT(game.Clock, ElementsAre(32767, 1));
}

TEST(ClockTest, WritesHoursOnlyWhereThereAreAny) {
  const std::pair<int, std::string> cases[] = {{59, "00:59"},     {600, "10:00"},      {3599, "59:59"},
                                               {3661, "1:01:01"}, {36000, "10:00:00"}, {-1, "00:00"}};
  for (const auto& [seconds, text] : cases) EXPECT_EQ(core::ClockText(seconds), text) << seconds;
}

}  // namespace
}  // namespace tests
