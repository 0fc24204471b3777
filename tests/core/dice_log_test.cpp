// Rolls are counted and logged in step, and taken back one by one, whatever numbers a file has brought.
#include "../../core/dice_log.h"

#include <gmock/gmock.h>

#include "../recording_screen.h"

namespace tests {
namespace {

using core::TRoll;
using testing::ElementsAre;

class DiceLogTest : public testing::Test {
 protected:
  DiceLogTest() {
    state.game.GameType = core::kFirstExpansion;
    state.settings.ShowBarbarians = true;
  }
  void Roll(const TRoll& roll) {
    screen.Calls.clear();
    state.entry = {roll.Die1, roll.Die2, roll.EventDie, 2};
    state.game.Clock[1] = 42;
    core::RecordRoll(state, screen);
  }
  void Undo() {
    screen.Calls.clear();
    core::UndoLastRoll(state, screen);
  }
  int Total() { return core::CountTotalRolls(state.game); }

  core::State state;
  core::Game& game = state.game;
  RecordingScreen screen{state};
};

TEST_F(DiceLogTest, RollsAreCountedAndLoggedFromEntryOneAndUndoFreesTheEntry) {
  Roll({3, 4, 2});
  EXPECT_EQ(game.DiceLog[0], TRoll());
  EXPECT_EQ(game.DiceLog[1], (TRoll{3, 4, 2}));
  EXPECT_EQ(game.DiceCount[7] + game.EventCount[2], 2);
  EXPECT_EQ(state.entry.DiceEntryStage, 0);
  game.Clock[1] = 9;
  Undo();
  EXPECT_EQ(game.DiceLog[1], TRoll());
  EXPECT_EQ(game.EventCount[2], 0);
  EXPECT_EQ(game.Clock[1], 9);
  EXPECT_EQ(state.entry.Die2, 4);
  Roll({1, 1, 0});
  EXPECT_EQ(Total(), 1);
  EXPECT_EQ(game.DiceLog[1], (TRoll{1, 1, 0}));
}

TEST_F(DiceLogTest, UndoOfAnEmptyGameOnlyRedraws) {
  Undo();
  EXPECT_THAT(game.DiceCount, testing::Each(0));
  EXPECT_THAT(game.EventCount, testing::Each(0));
  EXPECT_THAT(screen.Calls, ElementsAre("chart of 0"));
}

TEST_F(DiceLogTest, LogHasRoomFor500RollsAndThe501stOnlyShows) {
  for (int i = 0; i < 499; ++i) Roll({1, 1, 1});
  Roll({6, 6, 2});
  EXPECT_EQ(game.DiceLog[500], (TRoll{6, 6, 2}));
  game.EventCount[4] = 7;
  Roll({2, 3, 4});
  EXPECT_EQ(Total(), 500);
  EXPECT_EQ(game.EventCount[4], 7);
  EXPECT_EQ(game.DiceLog[500], (TRoll{6, 6, 2}));
  EXPECT_THAT(screen.Calls, ElementsAre("dice", "chart of 500", "unlock", "close after 0 s"));
  Undo();
  EXPECT_EQ(Total(), 499);
}

TEST_F(DiceLogTest, AttackComesAtEverySeventhShip) {
  struct Case {
    const char* What;
    std::int16_t GameType;
    bool ShowBarbarians;
    std::int16_t ShipsBefore, Face;
    bool Attack;
  };
  const Case cases[] = {{"sixth", 3, true, 5, 4, false},     {"seventh", 3, true, 6, 4, true},
                        {"eighth", 3, true, 7, 4, false},    {"fourteenth", 3, true, 13, 4, true},
                        {"a gate", 3, true, 7, 3, false},    {"no event die", 3, true, 7, 0, false},
                        {"base game", 2, true, 6, 4, false}, {"window switched off", 3, false, 6, 4, false},
                        {"negative", 3, true, -8, 4, false}, {"none", 3, true, -1, 4, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    game.GameType = c.GameType;
    state.settings.ShowBarbarians = c.ShowBarbarians;
    game.DiceCount = {};
    game.EventCount = {0, 0, 0, 0, c.ShipsBefore};
    Roll({1, 2, c.Face});
    EXPECT_THAT(screen.Calls, ElementsAre("dice", "chart of 1", c.Attack ? "attack" : "unlock", "close after 0 s"));
  }
}

TEST_F(DiceLogTest, SeventhShipAttacksAgainAfterUndo) {
  for (int ship = 1; ship <= 7; ++ship) Roll({1, 2, 4});
  Undo();
  EXPECT_THAT(screen.Calls, ElementsAre("chart of 7"));
  Roll({5, 5, 4});
  EXPECT_THAT(screen.Calls, testing::Contains("attack"));
}

TEST_F(DiceLogTest, UndoTakesBackOnlyWhatCountsAndLogAgreeOn) {
  struct Case {
    const char* What;
    std::int16_t Sevens, Ships;
    TRoll Logged;
    std::int16_t SevensAfter, ShipsAfter;
  };
  const Case cases[] = {
      {"sound", 3, 2, {3, 4, 4}, 2, 1},
      {"empty entry of an old file", 3, 2, {}, 3, 2},
      {"dice far beyond their faces", 3, 2, {30000, 30000, 30000}, 3, 2},
      {"dice below zero", 3, 2, {-30000, 3, -1}, 3, 2},
      {"sum just beyond the counts", 3, 2, {7, 6, 5}, 3, 2},
      {"sum never counted", 3, 2, {6, 6, 1}, 3, 2},
      {"ship never counted", 3, 0, {3, 4, 4}, 2, 0},
      {"more rolls than entries", 501, 2, {3, 4, 4}, 501, 2},
      {"highest count", 32767, 2, {3, 4, 4}, 32767, 2},
      {"negative count", -3, 2, {3, 4, 4}, -3, 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    game = {};
    game.DiceCount[7] = c.Sevens;
    game.EventCount[4] = c.Ships;
    game.DiceLog[3] = c.Logged;
    Undo();
    std::array<std::int16_t, 13> counts{};
    counts[7] = c.SevensAfter;
    EXPECT_EQ(game.DiceCount, counts);
    EXPECT_THAT(game.EventCount, ElementsAre(0, 0, 0, 0, c.ShipsAfter));
  }
}

TEST_F(DiceLogTest, RollOnNegativeCountsIsNeverLogged) {
  for (const std::int16_t count : {std::int16_t{-1}, std::int16_t{-32768}}) {
    game.DiceCount = {0, 0, count, count};
    Roll({3, 4, 1});
    EXPECT_EQ(game.DiceCount[7], 1);
    EXPECT_THAT(game.DiceLog, testing::Each(TRoll()));
  }
}

}  // namespace
}  // namespace tests
