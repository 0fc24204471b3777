#include "../../core/player_actions.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using tests::kTitles;
using tests::SeatedGame;

struct ActionCase {
  int Code;
  TPlayer Before;
  TPlayer After;
  std::optional<Refusal> Refused;
};

TPlayer With(std::int16_t settlements, std::int16_t cities, std::int16_t bonusPoints = 0) {
  return {.Name = "", .Settlements = settlements, .Cities = cities, .BonusPoints = bonusPoints};
}

TEST(PlayerActions, MovePiecesWithinTheLimits) {
  const std::vector<ActionCase> cases{
      {1, With(4, 0), With(5, 0), {}},
      {1, With(5, 0), With(5, 0), Refusal{57, 59}},
      {1, With(6, 0), With(7, 0), {}},  // above the limit nothing holds back
      {1, With(32767, 0), With(32767, 0), {}},
      {2, With(5, 0), With(4, 1), {}},
      {2, With(1, 3), With(0, 4), {}},
      {2, With(0, 1), With(0, 1), Refusal{58, 60}},
      {2, With(0, 4), With(0, 4), Refusal{58, 60}},  // the settlements are looked at first
      {2, With(2, 4), With(2, 4), Refusal{59, 60}},
      {2, With(2, 5), With(1, 6), {}},
      {2, With(-32768, 32767), With(-32768, 32767), {}},
      {3, With(1, 1, 99), With(1, 1, 100), {}},
      {3, With(1, 1, 32767), With(1, 1, 32767), {}},
      {10, With(5, 1), With(6, 0), {}},
      {10, With(6, 0), With(6, 0), Refusal{62, 63}},
      {10, With(1, -1), With(2, -2), {}},
      {0, With(2, 2), With(2, 2), {}},
      {11, With(2, 2), With(2, 2), {}},
  };
  for (const ActionCase& each : cases) {
    SCOPED_TRACE(testing::Message() << "action " << each.Code << ", " << each.Before.Settlements << " settlements, "
                                    << each.Before.Cities << " cities");
    Game game;
    game.CurrentPlayer = 6;
    game.ActionCode = static_cast<std::int16_t>(each.Code);
    game.Players[6] = each.Before;
    EXPECT_EQ(ApplyPlayerAction(game), each.Refused);
    EXPECT_EQ(game.Players[6], each.After);
    game.Players[6] = {};
    EXPECT_EQ(game.Players, Game{}.Players) << "another seat was touched";
  }
}

TEST(PlayerActions, GiveEachTitleToOneSeatAlone) {
  for (std::size_t title = 0; title < kTitles.size(); ++title) {
    for (std::int16_t holder = 1; holder <= kSeats; ++holder) {
      SCOPED_TRACE(testing::Message() << "action " << title + 4 << ", seat " << holder);
      Game game = SeatedGame(3);
      for (TPlayer& player : WithoutPlaceZero(game.Players)) player.*kTitles[title] = true;
      auto expected = SeatedGame(3).Players;
      expected[static_cast<std::size_t>(holder)].*kTitles[title] = true;
      game.ActionCode = static_cast<std::int16_t>(title + 4);
      game.CurrentPlayer = holder;
      for (int time = 1; time <= 2; ++time) {
        EXPECT_EQ(ApplyPlayerAction(game), std::nullopt);
        EXPECT_EQ(game.Players, expected);
      }
    }
  }
}

TEST(PlayerActions, DoNothingForASeatThatIsNone) {
  for (const auto seat : std::to_array<std::int16_t>({-32768, -1, 0, 7, 32767})) {
    Game game = SeatedGame();
    game.CurrentPlayer = seat;
    for (game.ActionCode = 1; game.ActionCode <= 10; ++game.ActionCode) {
      EXPECT_EQ(ApplyPlayerAction(game), std::nullopt);
      EXPECT_EQ(game.Players, SeatedGame().Players) << "seat " << seat << ", action " << game.ActionCode;
    }
  }
}

TEST(PlayerActions, AreOfferedByTheKindOfGame) {
  const auto offered = [](std::int16_t gameType) {
    std::string digits;
    for (int code = 1; code <= 10; ++code) digits += ActionOffered(gameType, code) ? std::to_string(code % 10) : "-";
    return digits;
  };
  EXPECT_EQ(offered(2), "12345-----");
  EXPECT_EQ(offered(3), "1234-67890");
  for (const auto other : std::to_array<std::int16_t>({0, 1, 4, -2})) EXPECT_EQ(offered(other), "1234567890") << other;
}

TEST(PlayerActions, TheRoadIsTakenFromEverybodyAndNothingElse) {
  Game game = SeatedGame(3);
  for (TPlayer& player : WithoutPlaceZero(game.Players)) {
    for (const auto title : kTitles) player.*title = true;
  }
  Game expected = game;
  for (TPlayer& player : WithoutPlaceZero(expected.Players)) player.LongestRoad = false;
  TakeLongestRoad(game);
  EXPECT_EQ(game.Players, expected.Players);
}

}  // namespace
}  // namespace core
