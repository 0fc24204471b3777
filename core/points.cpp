#include "points.h"

#include <algorithm>

#include "numbers.h"

namespace core {
namespace {

/// In int, which 16-bit holdings cannot overflow.
int PointsOf(const TPlayer& player) {
  return player.Settlements * kSettlementPoints + player.Cities * kCityPoints + player.BonusPoints * kBonusPointPoints +
         (player.LongestRoad + player.LargestArmy) * kTitlePoints + MetropolisCount(player) * kMetropolisPoints +
         player.Merchant * kMerchantPoints;
}

}  // namespace

int MetropolisCount(const TPlayer& player) {
  return player.PoliticsMetropolis + player.TradeMetropolis + player.ScienceMetropolis;
}

void ComputePoints(const Game& game, Figures& figures) {
  const auto players = WithoutPlaceZero(game.Players);
  std::transform(players.begin(), players.end(), WithoutPlaceZero(figures.PlayerPoints).begin(),
                 [](const TPlayer& player) { return Saturate16(PointsOf(player)); });
}

void CalcPoints(State& state, Screen& screen) {
  ComputePoints(state.game, state.figures);
  screen.DrawPlayerPanels();
}

void ClampPoints(Figures& figures) {
  for (std::int16_t& points : WithoutPlaceZero(figures.PlayerPoints)) {
    points = std::clamp<std::int16_t>(points, 0, kHighestPoints);
  }
}

void FindLeaders(Figures& figures) {
  const auto points = WithoutPlaceZero(figures.PlayerPoints);
  const std::int16_t most = *std::max_element(points.begin(), points.end());
  std::transform(points.begin(), points.end(), WithoutPlaceZero(figures.LeaderFlag).begin(),
                 [most](std::int16_t own) { return own == most; });
}

std::optional<int> WinningSeat(const State& state) {
  if (!state.settings.ShowWinner) return std::nullopt;
  const Figures& figures = state.figures;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (figures.LeaderFlag[seat] && figures.PlayerPoints[seat] >= state.game.WinPoints) return seat;
  }
  return std::nullopt;
}

}  // namespace core
