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

void ComputePoints(Game& game) {
  const auto players = WithoutPlaceZero(game.Players);
  std::transform(players.begin(), players.end(), WithoutPlaceZero(game.PlayerPoints).begin(),
                 [](const TPlayer& player) { return Saturate16(PointsOf(player)); });
}

void CalcPoints(Game& game, Screen& screen) {
  ComputePoints(game);
  screen.DrawPlayerPanels();
}

void ClampPoints(Game& game) {
  for (std::int16_t& points : WithoutPlaceZero(game.PlayerPoints)) {
    points = std::clamp<std::int16_t>(points, 0, kHighestPoints);
  }
}

void FindLeaders(Game& game) {
  const auto points = WithoutPlaceZero(game.PlayerPoints);
  const std::int16_t most = *std::max_element(points.begin(), points.end());
  std::transform(points.begin(), points.end(), WithoutPlaceZero(game.LeaderFlag).begin(),
                 [most](std::int16_t own) { return own == most; });
}

std::optional<int> WinningSeat(const State& state) {
  if (!state.settings.ShowWinner) return std::nullopt;
  const Game& game = state.game;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (game.LeaderFlag[seat] && game.PlayerPoints[seat] >= game.WinPoints) return seat;
  }
  return std::nullopt;
}

}  // namespace core
