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
  EXPECT_EQ(game.DiceCount[7] + game.EventCount[2], 2);
  EXPECT_EQ(state.entry.DiceEntryStage, 0);
  game.Clock[1] = 9;
  screen.Calls.clear();
  for (int time = 1; time <= 2; ++time) core::UndoLastRoll(state, screen);  // the second in an empty game
  EXPECT_THAT(game.DiceLog, Each(TRoll()));
  EXPECT_THAT(game.DiceCount, Each(0));
  EXPECT_THAT(screen.Calls, ElementsAre("chart of 1", "chart of 0"));
  EXPECT_EQ(game.Clock[1], 9);
}

TEST_F(DiceLogTest, LogHasRoomFor500RollsAndThe501stOnlyShows) {
  for (int i = 0; i < 499; ++i) Roll({1, 1, 1});
  for (const std::int16_t face : std::array<std::int16_t, 2>{2, 4}) Roll({6, 6, face});
  EXPECT_EQ(game.DiceLog[500], (TRoll{6, 6, 2}));
  EXPECT_EQ(game.DiceCount[12] + game.EventCount[4], 1);
  EXPECT_THAT(screen.Calls, ElementsAre("dice", "chart of 500", "unlock", "close after 0 s"));
}

TEST_F(DiceLogTest, AttackComesAtEverySeventhShip) {
  const auto third = [this](int shipsBefore, std::int16_t face, std::int16_t gameType = 3, bool shown = true) {
    game = {};
    game.GameType = gameType;
    game.EventCount[4] = static_cast<std::int16_t>(shipsBefore);
    state.settings.ShowBarbarians = shown;
    Roll({1, 2, face});
    return screen.Calls[2];
  };
  for (const int shipsBefore : {6, 13}) EXPECT_EQ(third(shipsBefore, 4), "attack") << shipsBefore;
  for (const int shipsBefore : {5, 7, -1, -8}) EXPECT_EQ(third(shipsBefore, 4), "unlock") << shipsBefore;
  EXPECT_EQ(third(7, 3), "unlock") << "a gate";
  EXPECT_EQ(third(6, 4, 2), "unlock") << "base game";
  EXPECT_EQ(third(6, 4, 3, false), "unlock") << "window switched off";
}

TEST_F(DiceLogTest, UndoTakesBackOnlyWhatCountsAndLogAgreeOn) {
  const auto sevensAndShipsAfter = [this](std::int16_t sevens, const TRoll& logged) {
    game = {};
    game.DiceCount[7] = sevens;
    game.EventCount[4] = 2;
    game.DiceLog[3] = logged;
    core::UndoLastRoll(state, screen);
    EXPECT_EQ(std::ranges::count(game.DiceCount, 0) + std::ranges::count(game.EventCount, 0), 16) << "other counts";
    return std::pair<int, int>(game.DiceCount[7], game.EventCount[4]);
  };
  EXPECT_EQ(sevensAndShipsAfter(3, {3, 4, 4}), std::pair(2, 1));
  EXPECT_EQ(sevensAndShipsAfter(3, {}), std::pair(3, 2)) << "empty entry of an old file";
  EXPECT_EQ(sevensAndShipsAfter(3, {-30000, 3, -1}), std::pair(3, 2));
  EXPECT_EQ(sevensAndShipsAfter(3, {7, 6, 5}), std::pair(3, 2)) << "just beyond the counts";
  EXPECT_EQ(sevensAndShipsAfter(3, {6, 6, 1}), std::pair(3, 2)) << "never counted";
  EXPECT_EQ(sevensAndShipsAfter(501, {3, 4, 4}), std::pair(501, 2));
  EXPECT_EQ(sevensAndShipsAfter(-3, {3, 4, 4}), std::pair(-3, 2));
}

TEST_F(DiceLogTest, RollOnNegativeCountsIsNeverLogged) {
  game.DiceCount = {0, 0, -32768, -1};
  Roll({3, 4, 1});
  EXPECT_EQ(game.DiceCount[7], 1);
  EXPECT_THAT(game.DiceLog, Each(TRoll()));
}

}  // namespace
}  // namespace tests
