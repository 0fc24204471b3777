#include "../../core/ranking.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using tests::SeatedGame;

/// The standing in one line: "1.P2=8 1.P3=8 3.P1=5", a seat that does not play with a "-" behind.
std::string Standing(const Game& game) {
  std::string line;
  for (const RankedPlayer& player : RankPlayers(game)) {
    if (!line.empty()) line += " ";
    line += std::to_string(player.Rank) + "." + player.Name + "=" + std::to_string(player.Points);
    if (!player.Active) line += "-";
  }
  return line;
}

TEST(Ranking, OrdersByPointsAndLetsEqualsShareARank) {
  struct Case {
    int Players;
    std::array<std::int16_t, kSeats + 1> Points;
    std::string Expected;
  };
  const std::vector<Case> cases{
      {3, {0, 5, 8, 8, 2, 2, 2}, "1.P2=8 1.P3=8 3.P1=5"},
      {3, {0, 1, 2, 3, 99, 99, 99}, "1.P3=3 2.P2=2 3.P1=1"},  // who does not play counts nothing
      {4, {0, 2, 2, 2, 2, 2, 2}, "1.P1=2 1.P2=2 1.P3=2 1.P4=2"},
      {6, {0, 3, 7, 3, 7, 1, 9}, "1.P6=9 2.P2=7 2.P4=7 4.P1=3 4.P3=3 6.P5=1"},
      {2, {99, -4, -3, 0, 0, 0, 0}, "1.P3=0- 1.P4=0-"},  // below the zero of an empty seat
  };
  for (const Case& each : cases) {
    Game game = SeatedGame(each.Players);
    game.PlayerPoints = each.Points;
    EXPECT_EQ(Standing(game), each.Expected);
  }
}

TEST(Ranking, KeepsToTheSeatsWhateverNumberOfPlayersAFileBrings) {
  using Places = std::pair<std::int16_t, std::size_t>;
  for (const auto& [players, places] :
       {Places{-32768, 0}, Places{0, 0}, Places{1, 1}, Places{7, 6}, Places{32767, 6}}) {
    Game game = SeatedGame();
    game.NumPlayers = players;
    EXPECT_EQ(RankPlayers(game).size(), places) << players;
  }
}

}  // namespace
}  // namespace core
