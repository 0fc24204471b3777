#include "../../core/new_game.h"

#include <gmock/gmock.h>

#include "seated_game.h"

namespace core {
namespace {

using testing::Each;
using testing::ElementsAre;
using tests::kTitles;
using tests::SeatedGame;

/// A game in full swing: every variable differs from what a new game sets.
State InFullSwing() {
  State state;
  state.game = SeatedGame(6);
  for (TPlayer& player : WithoutPlaceZero(state.game.Players)) {
    player.Settlements = 4;
    player.Cities = 3;
    player.BonusPoints = 7;
    for (const auto title : kTitles) player.*title = true;
  }
  state.game.PlayerPoints.fill(21);
  state.game.DiceCount.fill(9);
  state.game.EventCount.fill(8);
  state.game.DiceLog.fill({1, 2, 3});
  state.game.Clock = {500, 50};
  state.game.GameWon = true;
  state.entry = {.Die1 = 5, .Die2 = 6, .EventDie = 4, .DiceEntryStage = 2};
  state.settings.HG = 3;
  return state;
}

NewGame ThreeIn(std::int16_t gameType) {
  return {.NumPlayers = 3,
          .GameType = gameType,
          .WinPoints = 15,
          .Names = {"", "Ada", "Björn", "", "Dora", "Emil", "Fritz"},
          .Flottillen = kOn,
          .Scenario = kOn,
          .Title = "Sunday",
          .Info = "at home"};
}

TEST(StartGame, GivesAllSixSeatsThePiecesOfTheirKindOfGame) {
  struct Case {
    std::int16_t GameType, Settlements, Cities, Points;
  };
  for (const Case& each : {Case{2, 2, 0, 2}, Case{3, 1, 1, 3}, Case{7, 4, 3, 7}}) {
    SCOPED_TRACE(each.GameType);
    State state = InFullSwing();
    StartGame(state, ThreeIn(each.GameType));
    const std::array<std::string, kSeats + 1> names{"", "Ada", "Björn", "", "P4", "P5", "P6"};
    for (std::size_t seat = 1; seat <= kSeats; ++seat) {
      const TPlayer expected{
          .Name = names[seat], .Settlements = each.Settlements, .Cities = each.Cities, .Active = seat <= 3};
      EXPECT_EQ(state.game.Players[seat], expected) << "seat " << seat;
      EXPECT_EQ(state.game.PlayerPoints[seat], each.Points);
    }
  }
}

TEST(StartGame, TakesTheChoicesAndClearsTheCountsButKeepsTheLog) {
  State state = InFullSwing();
  StartGame(state, ThreeIn(kFirstExpansion));
  const Game& game = state.game;
  EXPECT_EQ(game.NumPlayers, 3);
  EXPECT_EQ(game.GameType, 3);
  EXPECT_EQ(game.WinPoints, 15);
  EXPECT_EQ(game.OptFlottillen, kOn);
  EXPECT_EQ(game.OptScenario, kOn);
  EXPECT_EQ(game.GameTitle, "Sunday");
  EXPECT_EQ(game.GameInfo, "at home");
  EXPECT_THAT(game.EventCount, ElementsAre(8, 0, 0, 0, 0)) << "the rolls without event die are nobody's to reset";
  EXPECT_THAT(WithoutPlaceZero(game.DiceCount), Each(0));
  EXPECT_THAT(game.Clock, ElementsAre(0, 0));
  EXPECT_TRUE(game.ClockRunning);
  EXPECT_EQ(state.entry.DiceEntryStage, 0);
  EXPECT_THAT(game.DiceLog, Each(TRoll{1, 2, 3}));
  EXPECT_TRUE(game.GameWon);
  EXPECT_EQ(state.settings.HG, 3);
}

TEST(StartGame, KeepsToTheSeatsWhateverNumberOfPlayersIsAskedFor) {
  for (const auto players : std::to_array<std::int16_t>({-32768, 0, 7, 32767})) {
    State state = InFullSwing();
    NewGame chosen = ThreeIn(kBaseGame);
    chosen.NumPlayers = players;
    StartGame(state, chosen);
    EXPECT_EQ(state.game.Players[6].Active, players > 0) << players;
    EXPECT_EQ(state.game.Players[6].Name, players > 0 ? "Fritz" : "P6");
  }
}

TEST(Theme, FollowsTheSecondExpansionBeforeTheKindOfGame) {
  struct Case {
    std::int16_t GameType, Flottillen;
    int Theme;
  };
  for (const Case& each : {Case{2, 0, 1}, Case{3, 0, 2}, Case{2, 1, 3}, Case{3, 1, 3}, Case{7, 1, 3}, Case{7, 0, 0},
                           Case{0, 0, 0}, Case{2, 2, 0}, Case{3, -1, 0}}) {
    Game game;
    game.GameType = each.GameType;
    game.OptFlottillen = CheckValue{each.Flottillen};
    EXPECT_EQ(ThemeOf(game), each.Theme) << each.GameType << ", " << each.Flottillen;
  }
}

}  // namespace
}  // namespace core
