#include "../../core/player_actions.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using tests::kTitles;
using tests::SeatedGame;

/// What the action makes of so many settlements, cities and bonus points: "5 0 0", or the refusal's texts: "57/59".
std::string After(std::int16_t code, const std::array<std::int16_t, 3>& pieces) {
  Game game;
  const Asked asked{.CurrentPlayer = 6, .ActionCode = code};
  TPlayer& player = game.Players[6];
  std::tie(player.Settlements, player.Cities, player.BonusPoints) = std::tuple_cat(pieces);
  const TPlayer before = player;
  const auto number = [](int value) { return std::to_string(value); };
  const auto refusal = ApplyPlayerAction(game, asked);
  EXPECT_TRUE(!refusal || player == before);
  if (refusal) return number(refusal->MessageText) + "/" + number(refusal->TitleText);
  return number(player.Settlements) + " " + number(player.Cities) + " " + number(player.BonusPoints);
}

TEST(PlayerActions, MovePiecesWithinTheLimitsButHoldNobodyBackWhoIsAboveThem) {
  EXPECT_EQ(After(1, {5}), "57/59");
  EXPECT_EQ(After(1, {6}), "7 0 0");
  EXPECT_EQ(After(2, {5}), "4 1 0");
  EXPECT_EQ(After(2, {0, 4}), "58/60") << "the settlements are looked at first";
  EXPECT_EQ(After(2, {2, 4}), "59/60");
  EXPECT_EQ(After(2, {-32768, 32767}), "-32768 32767 0");
  EXPECT_EQ(After(10, {6, 0}), "62/63");
}

TEST(PlayerActions, GiveEachTitleToOneSeatAlone) {
  for (std::size_t title = 0; title < kTitles.size(); ++title) {
    Game game = SeatedGame(3, true);
    auto expected = game.Players;
    for (TPlayer& player : expected) player.*kTitles[title] = player.Name == "P6";
    const Asked asked{.CurrentPlayer = 6, .ActionCode = static_cast<std::int16_t>(kLongestRoad + title)};
    ApplyPlayerAction(game, asked);
    EXPECT_EQ(game.Players, expected) << "action " << asked.ActionCode;
  }
}

}  // namespace
}  // namespace core
