// Rolls by hand and by the program: counted and logged in step, and taken back one by one, whatever numbers a file has
// brought.
#include "../../core/rolls.h"

#include <gmock/gmock.h>

#include "../../core/screen.h"

namespace tests {
namespace {

using core::TRoll;
using testing::Each;
using testing::ElementsAre;

/// The screen itself, which keeps what the rules ask of it, in order.
class DiceLogTest : public testing::Test, public core::Screen {
 protected:
  void Roll(const TRoll& roll) {
    Calls.clear();
    state.entry = {roll.Die1, roll.Die2, roll.EventDie, 2};
    game.Clock[1] = 42;
    core::RecordRoll(state, *this);
  }
  void DrawDiceStats() override { Calls.push_back("chart of " + std::to_string(core::CountTotalRolls(game))); }
  void ShowRolledDice() override { Calls.push_back("dice"); }
  void ShowAttack() override { Calls.push_back("attack"); }
  void CloseDiceDialog() override { Calls.push_back("close after " + std::to_string(game.Clock[1]) + " s"); }
  void DrawPlayerPanels() override {}

  std::vector<std::string> Calls;
  core::State state;
  core::Game& game = state.game;
};

TEST_F(DiceLogTest, MenuKnowsThreeShipsOnSixSidesAndMouseFourEvenFaces) {
  const std::tuple<double, std::int16_t, std::int16_t> cases[] = {
      {0.16, 1, 1}, {0.24, 2, 1}, {0.25, 2, 2}, {0.49, 3, 2}, {0.5, 4, 3}, {0.74, 4, 3}, {0.999, 4, 4}};
  for (const auto& [random, menu, mouse] : cases) {
    for (const auto& [command, face] : {std::pair(core::EventDieOf::Menu, menu), {core::EventDieOf::Mouse, mouse}}) {
      const double numbers[] = {0.999999, 0.5, random};  // one for each die
      game = {};
      const auto next = [number = numbers]() mutable { return *number++; };
      core::AutoRoll(state, *this, next, command);
      EXPECT_EQ(game.DiceLog[1], (TRoll{6, 4, face})) << random;
    }
  }
}

TEST_F(DiceLogTest, LogHasRoomFor500RollsAndThe501stOnlyShows) {
  for (int i = 0; i < 499; ++i) Roll({1, 1, 1});
  Roll({6, 6, 2});
  Roll({6, 6, 4});
  EXPECT_EQ(game.DiceLog[500], (TRoll{6, 6, 2}));
  EXPECT_EQ(game.DiceCount[12] + game.EventCount[4], 1);
  EXPECT_THAT(Calls, ElementsAre("dice", "chart of 500", "close after 0 s"));
}

TEST_F(DiceLogTest, AttackComesAtEverySeventhShip) {
  // Ships before, face, kind of game.
  const std::tuple<std::int16_t, std::int16_t, std::int16_t, const char*> cases[] = {{6, 4, 3, "attack"},
                                                                                     {13, 4, 3, "attack"},
                                                                                     {-8, 4, 3, "close after 0 s"},
                                                                                     {7, 3, 3, "close after 0 s"},
                                                                                     {6, 4, 2, "close after 0 s"}};
  state.settings.ShowBarbarians = true;
  for (const auto& [shipsBefore, face, gameType, third] : cases) {
    game = {};
    game.GameType = gameType;
    game.EventCount[4] = shipsBefore;
    Roll({1, 2, face});
    EXPECT_EQ(Calls[2], third) << shipsBefore << " ships, face " << face << ", kind of game " << gameType;
  }
}

TEST_F(DiceLogTest, UndoTakesBackOnlyWhatCountsAndLogAgreeOn) {
  // Sevens and what is logged; sevens and ships that are left.
  const std::tuple<std::int16_t, TRoll, std::int16_t, std::int16_t> cases[] = {
      {3, {3, 4, 4}, 2, 1},     {3, {}, 3, 2},         {3, {-30000, 3, -1}, 3, 2}, {3, {7, 6, 5}, 3, 2},
      {501, {3, 4, 4}, 501, 2}, {-3, {3, 4, 4}, -3, 2}};
  for (const auto& [sevens, logged, sevensLeft, shipsLeft] : cases) {
    game = {};
    game.DiceCount[7] = sevens;
    game.EventCount[4] = 2;
    game.DiceLog[3] = logged;
    core::UndoLastRoll(state, *this);
    EXPECT_EQ(std::pair(game.DiceCount[7], game.EventCount[4]), std::pair(sevensLeft, shipsLeft)) << sevens;
  }
  game = {};
  core::UndoLastRoll(state, *this);
  EXPECT_THAT(game.DiceCount, Each(0)) << "nothing to take back";
}

}  // namespace
}  // namespace tests
