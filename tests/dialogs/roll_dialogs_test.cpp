// Rolls entered at the table, by keys, by clicks, and by both, every way out of the dialog; and the barbarians' attack.
#include "../main_window_fixture.h"

namespace tests {
namespace {

struct DiceEntryTest : MainWindowTest {
  dialogs::F7& F7 = window.F7;

  void Open() { Click(window.F1.picWurfel(0)); }
  void Black(int value) { Click(F7.picSW(value - 1)); }
  void Red(int value) { Click(F7.picRW(value - 1)); }
  void Event(int face) { Click(F7.picEW(face - 1)); }
  void StartGame(std::int16_t gameType) {
    settings.EventHotkey = {0, 'P', 'H', 'W', 'B'};
    game.DiceCount.fill(0);
    game.GameType = gameType;
  }
};

constexpr std::int16_t kBase = core::kBaseGame, kExpansion = core::kFirstExpansion;

TEST_F(DiceEntryTest, EveryPathToAWholeRollRecordsItAndUnlocks) {
  auto& keys = settings.EventHotkey;
  const std::tuple<const char*, std::int16_t, Act, core::TRoll> cases[] = {
      {"two digits and an event key", kExpansion, [&] { Type("43B"); }, {4, 3, 4}},
      {"clicks and OK", kExpansion, [&] { Open(), Event(2), Red(5), Black(1), Click(F7.cmdOK); }, {1, 5, 2}},
      {"event key in the base game", kBase, [&] { Type("43P"); }, {4, 3, 1}},
      {"third digit", kExpansion, [&] { Type("435W"); }, {4, 3, 3}},
      {"digit changed by a click", kExpansion, [&] { Type("43"), Black(5), Type("B"); }, {5, 3, 4}},
      {"digit after clicks",
       kExpansion,
       [&] { Open(), Black(2), Red(5), Type("1H"), Event(3), Type("\r"); },
       {1, 5, 3}},
      {"two faces with one key", kExpansion, [&] { keys[1] = keys[3] = 'X', Type("43X"); }, {4, 3, 3}},
      {"event key that is a digit", kExpansion, [&] { keys[2] = '5', Type("435P"); }, {4, 3, 1}},
      {"Enter before all is entered", kExpansion, [&] { Type("4\r3\rP"); }, {4, 3, 1}},
      // Unfinished entries: the dialog stays open, without OK.
      {"event key after clicked dice", kExpansion, [&] { Open(), Black(1), Red(1), Type("B"); }, {}},
      {"dice without event die", kExpansion, [&] { Type("43\r"); }, {}},
  };
  for (const auto& [what, gameType, roll, logged] : cases) {
    SCOPED_TRACE(what);
    StartGame(gameType);
    roll();
    if (logged.Die1 == 0) {
      EXPECT_TRUE(Locking(F7) && !F7.cmdOK.Enabled && Rolls() == 0);
      Press(platform::kKeyEscape);
      continue;
    }
    EXPECT_TRUE(Closed(F7) && Rolls() == 1 && entry.DiceEntryStage == 0);
    EXPECT_EQ(game.DiceLog[1], logged);
  }
}

TEST_F(MainWindowTest, AnAttackLocksOnlyWhereTheRollWasEntered) {
  PlayExpansion();
  const Act attacks[] = {[&] { Type("43B"); }, [&] { Press(platform::FunctionKey(9)); }};
  for (const bool byProgram : {false, true}) {
    game.EventCount[4] = 6;
    services.RandomNumbers = {0, 0, 0.99};
    attacks[byProgram]();
    EXPECT_TRUE(window.F11.Visible && !window.F7.Visible && window.F1.Enabled == byProgram);
    Key(window.F11, platform::kKeyEnter);
    EXPECT_TRUE(Closed(window.F11));
  }
  settings.ShowBarbarians = false;
  game.EventCount[4] = 6;
  Type("43B");
  EXPECT_TRUE(Closed(window.F11)) << "nobody wants to be told";
}

}  // namespace
}  // namespace tests
