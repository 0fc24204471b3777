#include "dice_stats.h"

#include <algorithm>
#include <cstdlib>

#include "numbers.h"
#include "rolls.h"

namespace core {
namespace {

constexpr int kFullBar = 300;     // pixels
constexpr int kMarkerRoom = 220;  // pixels for the marker of the sum 7 before the scale has to shrink

}  // namespace

double TheoryShare(int sum) {
  constexpr double kShares[] = {16.66, 13.88, 11.11, 8.33, 5.55, 2.77};  // by the distance from 7
  return kShares[std::clamp(std::abs(sum - 7), 0, 5)];
}

void ComputeDiceFigures(const Game& game, Figures& figures) {
  figures.TotalRolls = CountTotalRolls(game);
  figures.MaxDiceCount = *std::max_element(game.DiceCount.begin() + kLowestSum, game.DiceCount.end());
  for (int sum = kLowestSum; sum <= kHighestSum; ++sum) {
    const float count = game.DiceCount[sum];
    const bool none = count == 0 || figures.TotalRolls == 0;
    figures.DicePercent[sum] = none ? 0 : count * 100 / static_cast<float>(figures.TotalRolls);
  }
}

int ChartBarUnit(const Figures& figures) {
  if (figures.MaxDiceCount <= 0) return kFullBar;
  const int unit = kFullBar / figures.MaxDiceCount;
  if (ChartMarkerLength(figures, unit, 7) <= kMarkerRoom) return unit;
  return static_cast<int>(WholeDivide(kMarkerRoom * 100, figures.TotalRolls * TheoryShare(7)));
}

long long ChartMarkerLength(const Figures& figures, int barUnit, int sum) {
  return WholeDivide(static_cast<double>(figures.TotalRolls) * barUnit * TheoryShare(sum), 100);
}

bool IsAboveShare(const Figures& figures, int sum) {
  return figures.DicePercent[sum] > static_cast<float>(TheoryShare(sum));
}

long long EventPercent(const State& state, int face) {
  return WholeDivide(state.game.EventCount[face] * 100.0, state.figures.TotalRolls);
}

}  // namespace core
