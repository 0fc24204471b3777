#include "symbols.h"

#include "points.h"

namespace core {

std::vector<int> SymbolsOf(const TPlayer& player, int atMost) {
  const struct {
    int symbol;
    int times;
  } row[] = {{3, player.PoliticsMetropolis}, {4, player.TradeMetropolis},
             {5, player.ScienceMetropolis},  {2, player.Cities - MetropolisCount(player)},
             {1, player.Settlements},        {7, player.LongestRoad},
             {8, player.LargestArmy},        {6, player.Merchant},
             {9, player.BonusPoints}};
  std::vector<int> symbols;
  for (const auto& [symbol, times] : row) {
    for (int i = 0; i < times && static_cast<int>(symbols.size()) < atMost; ++i) symbols.push_back(symbol);
  }
  return symbols;
}

}  // namespace core
