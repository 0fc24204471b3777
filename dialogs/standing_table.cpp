#include "standing_table.h"

#include "../core/game_state.h"
#include "../core/numbers.h"
#include "../core/points.h"
#include "../core/texts.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

using core::State;
using core::TPlayer;
using platform::Colour;
using platform::Surface;

constexpr Colour kNotHeld{100, 100, 100};
constexpr Colour kFirstRow{255, 234, 190};
constexpr Colour kEvenRow{236, 231, 217};
constexpr int kTableWidth = 481;
constexpr int kRowHeight = 18;
constexpr int kRankX = 6;
constexpr int kNameX = 30;
constexpr int kPointsX = 200;
constexpr int kFirstCellX = 248;
constexpr int kCellPitch = 30;

constexpr core::Symbol kBaseColumns[] = {core::kSettlementSymbol, core::kCitySymbol, core::kBonusPointSymbol,
                                         core::kLongestRoadSymbol, core::kLargestArmySymbol};
constexpr core::Symbol kExpansionColumns[] = {core::kSettlementSymbol,  core::kCitySymbol,     core::kBonusPointSymbol,
                                              core::kLongestRoadSymbol, core::kMerchantSymbol, core::kPoliticsSymbol,
                                              core::kTradeSymbol,       core::kScienceSymbol};

/// What one cell shows: how many of its kind the player holds and what each is worth; a title is held or not.
struct Cell {
  int held;
  int worth;
  bool isTitle;
};

std::vector<Cell> CellsOf(const TPlayer& player, std::int16_t gameType) {
  std::vector<Cell> cells{{player.Settlements, core::kSettlementPoints, false},
                          {player.Cities, core::kCityPoints, false},
                          {player.BonusPoints, core::kBonusPointPoints, false},
                          {player.LongestRoad, core::kTitlePoints, true}};
  if (gameType == core::kBaseGame) cells.push_back({player.LargestArmy, core::kTitlePoints, true});
  if (gameType == core::kFirstExpansion) {
    cells.push_back({player.Merchant, core::kMerchantPoints, true});
    cells.push_back({player.PoliticsMetropolis, core::kMetropolisPoints, true});
    cells.push_back({player.TradeMetropolis, core::kMetropolisPoints, true});
    cells.push_back({player.ScienceMetropolis, core::kMetropolisPoints, true});
  }
  return cells;
}

std::string TextOf(const Cell& cell, bool inPoints) {
  if (inPoints) return std::to_string(cell.held * cell.worth);
  if (cell.isTitle) return cell.held ? "X" : "";
  return std::to_string(cell.held);
}

void DrawCells(const TPlayer& player, std::int16_t gameType, bool inPoints, int y, Surface& table) {
  int x = kFirstCellX;
  for (const Cell& cell : CellsOf(player, gameType)) {
    table.ForeColor = cell.held > 0 ? platform::kBlack : kNotHeld;
    const std::string text = TextOf(cell, inPoints);
    if (!text.empty()) table.PrintAt(x, y, text);
    x += kCellPitch;
  }
}

/// The first row has a warm ground, every second one of the others a faint one.
Colour GroundOf(int place) {
  if (place == 0) return kFirstRow;
  return place % 2 == 0 ? kEvenRow : windows::kPaper;
}

void DrawHead(const core::RankedPlayer& ranked, int place, int y, Surface& table) {
  table.ForeColor = platform::kBlack;
  table.FontSize = 12;
  table.FontBold = true;
  table.Halo.reset();
  table.PrintAt(kRankX, y, std::to_string(ranked.Rank) + ".");
  table.PrintAt(kNameX, y, ranked.Name);
  table.Halo = GroundOf(place);  // a long name passes beneath the figures
  table.PrintAt(kPointsX, y, core::PrintedNumber(ranked.Points));
}

/// A row finds its player by the name, so players of one name share their cells.
std::vector<const TPlayer*> PlayersOf(const core::RankedPlayer& ranked, const core::Game& game) {
  std::vector<const TPlayer*> players;
  for (const TPlayer& player : core::PlayersAtTheTable(game)) {
    if (player.Name == ranked.Name) players.push_back(&player);
  }
  return players;
}

std::string SpokenCells(const State& state, const TPlayer& player) {
  const std::span<const core::Symbol> columns = StandingColumns(state.game.GameType);
  const std::vector<Cell> cells = CellsOf(player, state.game.GameType);
  std::string spoken;
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const std::string text = TextOf(cells[column], state.settings.SiegAnzeige.IsOff());
    if (!text.empty()) spoken += ", " + state.Text(windows::TextOf(columns[column])) + " " + text;
  }
  return spoken;
}

}  // namespace

std::span<const core::Symbol> StandingColumns(std::int16_t gameType) {
  if (gameType == core::kFirstExpansion) return kExpansionColumns;
  return kBaseColumns;
}

std::string SpokenStanding(const State& state, const std::vector<core::RankedPlayer>& ranking) {
  std::string spoken;
  for (const core::RankedPlayer& ranked : ranking) {
    spoken += std::to_string(ranked.Rank) + ". " + ranked.Name + ": " + std::to_string(ranked.Points) + " ";
    spoken += state.Text(core::text::VictoryPoints);
    for (const TPlayer* player : PlayersOf(ranked, state.game)) spoken += SpokenCells(state, *player);
    spoken += "; ";
  }
  return spoken;
}

void DrawStandingTable(const State& state, const std::vector<core::RankedPlayer>& ranking, Surface& picRanking) {
  const core::Game& game = state.game;
  picRanking.Cls();
  const int rows = static_cast<int>(ranking.size());
  for (int place = 0; place < rows; ++place) {
    picRanking.FillBox(0, place * kRowHeight, kTableWidth, (place + 1) * kRowHeight, GroundOf(place));
  }
  int place = 0;
  for (const core::RankedPlayer& ranked : ranking) {
    const int y = place * kRowHeight + 1;
    DrawHead(ranked, place, y, picRanking);
    picRanking.FontBold = false;
    for (const TPlayer* player : PlayersOf(ranked, game)) {
      DrawCells(*player, game.GameType, state.settings.SiegAnzeige.IsOff(), y, picRanking);
    }
    ++place;
  }
}

}  // namespace dialogs
