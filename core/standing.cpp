#include "standing.h"

#include <algorithm>

#include "points.h"

namespace core {
namespace {

std::vector<RankedPlayer> AllSeats(const State& state) {
  std::vector<RankedPlayer> players;
  for (int seat = 1; seat <= kSeats; ++seat) {
    const TPlayer& player = state.game.Players[seat];
    const std::int16_t points = player.Active ? state.figures.PlayerPoints[seat] : std::int16_t{0};
    players.push_back({.Rank = 0, .Name = player.Name, .Active = player.Active, .Points = points});
  }
  return players;
}

/// Expects the players in the order of their points.
void NumberRanks(std::vector<RankedPlayer>& players) {
  int rank = 1;
  for (std::size_t place = 0; place < players.size(); ++place) {
    if (place > 0 && players[place].Points < players[place - 1].Points) rank = static_cast<int>(place) + 1;
    players[place].Rank = rank;
  }
}

}  // namespace

std::vector<RankedPlayer> RankPlayers(const State& state) {
  std::vector<RankedPlayer> players = AllSeats(state);
  // Stable, so that the seats decide among equals.
  std::stable_sort(players.begin(), players.end(),
                   [](const RankedPlayer& left, const RankedPlayer& right) { return left.Points > right.Points; });
  NumberRanks(players);
  players.resize(static_cast<std::size_t>(SeatsPlayed(state.game)));
  return players;
}

std::vector<Symbol> SymbolsOf(const TPlayer& player, int atMost) {
  const struct {
    Symbol symbol;
    int times;
  } row[] = {{kPoliticsSymbol, player.PoliticsMetropolis}, {kTradeSymbol, player.TradeMetropolis},
             {kScienceSymbol, player.ScienceMetropolis},   {kCitySymbol, player.Cities - MetropolisCount(player)},
             {kSettlementSymbol, player.Settlements},      {kLongestRoadSymbol, player.LongestRoad},
             {kLargestArmySymbol, player.LargestArmy},     {kMerchantSymbol, player.Merchant},
             {kBonusPointSymbol, player.BonusPoints}};
  std::vector<Symbol> symbols;
  for (const auto& [symbol, times] : row) {
    for (int i = 0; i < times && static_cast<int>(symbols.size()) < atMost; ++i) symbols.push_back(symbol);
  }
  return symbols;
}

BoardTotals CountBoard(const Game& game) {
  BoardTotals totals;
  for (const TPlayer& player : PlayersAtTheTable(game)) {
    totals.Settlements += player.Settlements;
    totals.Cities += player.Cities;
    totals.Metropolises += MetropolisCount(player);
  }
  return totals;
}

}  // namespace core
