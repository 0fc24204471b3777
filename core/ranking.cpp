#include "ranking.h"

#include <algorithm>

#include "seats.h"

namespace core {
namespace {

std::vector<RankedPlayer> AllSeats(const Game& game) {
  std::vector<RankedPlayer> players;
  for (int seat = 1; seat <= kSeats; ++seat) {
    const TPlayer& player = game.Players[seat];
    const std::int16_t points = player.Active ? game.PlayerPoints[seat] : std::int16_t{0};
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

std::vector<RankedPlayer> RankPlayers(const Game& game) {
  std::vector<RankedPlayer> players = AllSeats(game);
  // Stable, so that the seats decide among equals.
  std::stable_sort(players.begin(), players.end(),
                   [](const RankedPlayer& left, const RankedPlayer& right) { return left.Points > right.Points; });
  NumberRanks(players);
  players.resize(static_cast<std::size_t>(SeatsPlayed(game)));
  return players;
}

}  // namespace core
