// Rolls by hand and by the program: counted and logged in step, and taken back one by one, whatever numbers a file has
// brought.
#include "../../core/dice_log.h"

#include <gmock/gmock.h>

#include "../../core/auto_roll.h"
#include "../recording_screen.h"

namespace tests {
namespace {

using core::TRoll;
using testing::Each;
using testing::ElementsAre;

class DiceLogTest : public testing::Test {
 protected:
  void Roll(const TRoll& roll) {
    screen.Calls.clear();
    state.entry = {roll.Die1, roll.Die2, roll.EventDie, 2};
    game.Clock[1] = 42;
    core::RecordRoll(state, screen);
  }
  core::State state;
  core::Game& game = state.game;
  RecordingScreen screen{state};
};

TEST_F(DiceLogTest, MenuKnowsThreeShipsOnSixSidesAndMouseFourEvenFaces) {
  const auto face = [this](double number, core::EventDieOf command) {
    const std::array numbers{0.999999, 0.5, number};  // one for each die
    const auto next = [&numbers, at = 0U]() mutable { return numbers.at(at++); };
    game = {};
    core::AutoRoll(state, screen, next, command);
    EXPECT_EQ(game.DiceLog[1], (TRoll{6, 4, state.entry.EventDie}));
    return state.entry.EventDie;
  };
  const std::tuple<double, int, int> cases[] = {{0.16, 1, 1}, {0.17, 2, 1}, {0.24, 2, 1}, {0.25, 2, 2},
                                                {0.49, 3, 2}, {0.5, 4, 3},  {0.74, 4, 3}, {0.999999, 4, 4}};
  for (const auto& [random, menu, mouse] : cases) {
    EXPECT_EQ(face(random, core::EventDieOf::Menu), menu) << random;
    EXPECT_EQ(face(random, core::EventDieOf::Mouse), mouse) << random;
  }
}

TEST_F(DiceLogTest, RollsAreLoggedFromEntryOneAndUndoFreesTheEntry) {
  Roll({3, 4, 2});
  EXPECT_THAT(std::vector(&game.DiceLog[0], &game.DiceLog[3]), ElementsAre(TRoll(), TRoll{3, 4, 2}, TRoll()));
  screen.Calls.clear();
  for (int time = 1; time <= 2; ++time) core::UndoLastRoll(state, screen);  // the second in an empty game
  EXPECT_THAT(game.DiceLog, Each(TRoll()));
  EXPECT_THAT(game.DiceCount, Each(0));
  EXPECT_THAT(screen.Calls, ElementsAre("chart of 1", "chart of 0"));
}

TEST_F(DiceLogTest, LogHasRoomFor500RollsAndThe501stOnlyShows) {
  for (int i = 0; i < 499; ++i) Roll({1, 1, 1});
  for (const std::int16_t face : std::array<std::int16_t, 2>{2, 4}) Roll({6, 6, face});
  EXPECT_EQ(game.DiceLog[500], (TRoll{6, 6, 2}));
  EXPECT_EQ(game.DiceCount[12] + game.EventCount[4], 1);
  EXPECT_THAT(screen.Calls, ElementsAre("dice", "chart of 500", "unlock", "close after 0 s"));
}

TEST_F(DiceLogTest, AttackComesAtEverySeventhShip) {
  // Ships before, face, kind of game.
  const std::tuple<int, std::int16_t, std::int16_t, const char*> cases[] = {
      {6, 4, 3, "attack"}, {13, 4, 3, "attack"}, {-8, 4, 3, "unlock"}, {7, 3, 3, "unlock"}, {6, 4, 2, "unlock"}};
  state.settings.ShowBarbarians = true;
  for (const auto& [shipsBefore, face, gameType, third] : cases) {
    game = {};
    game.GameType = gameType;
    game.EventCount[4] = static_cast<std::int16_t>(shipsBefore);
    Roll({1, 2, face});
    EXPECT_EQ(screen.Calls[2], third) << shipsBefore << " ships, face " << face << ", kind of game " << gameType;
  }
}

TEST_F(DiceLogTest, UndoTakesBackOnlyWhatCountsAndLogAgreeOn) {
  // Sevens and what is logged; sevens and ships that are left.
  const std::tuple<std::int16_t, TRoll, int, int> cases[] = {{3, {3, 4, 4}, 2, 1},       {3, {}, 3, 2},
                                                             {3, {-30000, 3, -1}, 3, 2}, {3, {7, 6, 5}, 3, 2},
                                                             {501, {3, 4, 4}, 501, 2},   {-3, {3, 4, 4}, -3, 2}};
  for (const auto& [sevens, logged, sevensLeft, shipsLeft] : cases) {
    game = {};
    game.DiceCount[7] = sevens;
    game.EventCount[4] = 2;
    game.DiceLog[3] = logged;
    core::UndoLastRoll(state, screen);
    EXPECT_EQ(game.DiceCount[7], sevensLeft) << sevens << " sevens, logged " << logged.Die1;
    EXPECT_EQ(game.EventCount[4], shipsLeft) << sevens << " sevens, logged " << logged.Die1;
  }
}

}  // namespace
}  // namespace tests
