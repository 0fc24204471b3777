#include "../../core/clock.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::ElementsAre;
using tests::SeatedGame;

TEST(Clock, CountsBothClocksUpToTheirEndWhileTheyRun) {
  Game game;
  game.Clock = {32766, -1};
  Tick(game);
  EXPECT_THAT(game.Clock, ElementsAre(32766, -1)) << "the clocks stand";
  game.ClockRunning = true;
  Tick(game);
  EXPECT_THAT(game.Clock, ElementsAre(32767, 0));
  Tick(game);
  EXPECT_THAT(game.Clock, ElementsAre(32767, 1));
}

TEST(Clock, WritesHoursOnlyWhereThereAreAny) {
  const std::vector<std::pair<int, std::string>> cases{
      {0, "00:00"},      {59, "00:59"},      {60, "01:00"},       {600, "10:00"}, {3599, "59:59"},   {3600, "1:00:00"},
      {3661, "1:01:01"}, {32767, "9:06:07"}, {36000, "10:00:00"}, {-1, "00:00"},  {-32768, "00:00"},
  };
  for (const auto& [seconds, text] : cases) EXPECT_EQ(ClockText(seconds), text) << seconds;
}

TEST(BoardTotals, AddUpTheFirstSeatsWhetherOrNotTheyAreMarkedAsPlaying) {
  Game game = SeatedGame(0);
  for (std::int16_t seat = 0; seat <= kSeats; ++seat) {
    TPlayer& player = game.Players[static_cast<std::size_t>(seat)];
    player.Settlements = 30000;
    player.Cities = seat;
    player.TradeMetropolis = true;
    player.ScienceMetropolis = seat >= 3;
  }
  const std::vector<std::pair<std::int16_t, BoardTotals>> cases{
      {-32768, {0, 0, 0}},   {0, {0, 0, 0}},        {2, {60000, 3, 2}},        {3, {90000, 6, 4}},
      {6, {180000, 21, 10}}, {7, {180000, 21, 10}}, {32767, {180000, 21, 10}},
  };
  for (const auto& [players, totals] : cases) {
    game.NumPlayers = players;
    EXPECT_EQ(CountBoard(game), totals) << players << " players";
  }
}

}  // namespace
}  // namespace core
