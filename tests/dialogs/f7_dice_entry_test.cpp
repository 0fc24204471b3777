// Rolls entered at the table: by keys, by clicks, and by both, and every way out of the dialog.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using core::TRoll;
using platform::MouseButton;
using testing::ElementsAre;

struct DiceEntryTest : MainWindowTest {
  dialogs::F7& F7 = window.F7;

  void OpenByMouse() { Click(window.F1.picWurfel(0)); }
  void Black(int value) { Click(F7.picSW(value - 1)); }
  void Red(int value) { Click(F7.picRW(value - 1)); }
  void Event(int face) { Click(F7.picEW(face - 1)); }
  void Enter() { Press(platform::kKeyEnter); }
  std::vector<std::string> Chosen() const {
    return {Face(F7.picGewurfelt(0)), Face(F7.picGewurfelt(1)), Face(F7.picGewurfelt(2))};
  }
  void ExpectOpen(bool open) {
    EXPECT_EQ(F7.Visible, open);
    EXPECT_EQ(window.F1.Enabled, !open);
  }
  void StartGame(std::int16_t gameType) {
    window.State.settings.EventHotkey = {0, 'P', 'H', 'W', 'B'};
    game.DiceCount.fill(0);
    game.GameType = gameType;
  }
};

constexpr std::int16_t kBase = core::kBaseGame;
constexpr std::int16_t kExpansion = core::kFirstExpansion;

TEST_F(DiceEntryTest, EveryPathRecordsTheRollAndUnlocks) {
  struct Case {
    const char* What;
    std::int16_t GameType;
    std::function<void()> Enter;
    TRoll Roll;
  };
  auto& hotkeys = window.State.settings.EventHotkey;
  const Case cases[] = {
      {"two digits and an event key", kExpansion, [&] { Type("43B"); }, {4, 3, 4}},
      {"two digits and Enter", kBase, [&] { Type("61\r"); }, {6, 1, 0}},
      {"three clicks and OK",
       kExpansion,
       [&] { OpenByMouse(), Event(2), Red(5), Black(1), Click(F7.cmdOK); },
       {1, 5, 2}},
      {"two clicks and Enter", kBase, [&] { OpenByMouse(), Black(6), Red(6), Enter(); }, {6, 6, 0}},
      {"opened by mouse, entered by key", kExpansion, [&] { OpenByMouse(), Type("25H"); }, {2, 5, 2}},
      {"event key in the base game", kBase, [&] { Type("43P"); }, {4, 3, 1}},
      {"third digit", kExpansion, [&] { Type("435W"); }, {4, 3, 3}},
      {"digit changed by a click", kExpansion, [&] { Type("43"), Black(6), Black(5), Type("B"); }, {5, 3, 4}},
      {"digit after two clicks replaces the black die",
       kExpansion,
       [&] { OpenByMouse(), Black(2), Red(5), Type("1H"), Event(3), Enter(); },
       {1, 5, 3}},
      {"modifier with an event key", kExpansion, [&] { Type("43"), Type("B", {.Shift = true}); }, {4, 3, 4}},
      {"two faces with one key", kExpansion, [&] { hotkeys[1] = hotkeys[3] = 'X', Type("43X"); }, {4, 3, 3}},
      {"event key that is a digit", kExpansion, [&] { hotkeys[2] = '5', Type("435P"); }, {4, 3, 1}},
      {"Enter before all is entered", kExpansion, [&] { Type("4\r3\rP"); }, {4, 3, 1}},
      {"Space never presses a button",
       kExpansion,
       [&] { Type("4"), F7.SetFocus(F7.cmdNoOK), Type(" 3 B"); },
       {4, 3, 4}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    StartGame(c.GameType);
    c.Enter();
    ExpectOpen(false);
    EXPECT_EQ(Rolls(), 1);
    const TRoll& logged = game.DiceLog[1];
    EXPECT_THAT((std::vector{logged.Die1, logged.Die2, logged.EventDie}),
                ElementsAre(c.Roll.Die1, c.Roll.Die2, c.Roll.EventDie));
    EXPECT_EQ(entry.DiceEntryStage, 0);
    EXPECT_EQ(Face(window.F1.picWurfel(0)), Face(F7.picSW(c.Roll.Die1 - 1)));
    EXPECT_EQ(Face(window.F1.picWurfel(1)), Face(F7.picRW(c.Roll.Die2 - 1)));
  }
}

TEST_F(DiceEntryTest, UnfinishedEntryStaysOpenWithoutOk) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"event key before any die", [&] { OpenByMouse(), Type("B"); }},
      {"event key after one die", [&] { Type("4B"); }},
      {"event key after clicked dice", [&] { OpenByMouse(), Black(1), Red(1), Type("B"); }},
      {"dice without event die", [&] { Type("43\r"); }},
      {"event die without red die", [&] { OpenByMouse(), Black(1), Event(1), Enter(); }},
      {"event die without black die", [&] { OpenByMouse(), Red(1), Event(1), Click(F7.cmdOK); }},
      {"digits of the number pad", [&] { Type("4"), Press(platform::kKeyNumberPad0 + 3), Type("B"); }},
      {"digits that no die has", [&] { Type("4"), Type("0789B"); }},
  };
  for (const auto& [what, enterPart] : cases) {
    SCOPED_TRACE(what);
    StartGame(kExpansion);
    enterPart();
    ExpectOpen(true);
    EXPECT_FALSE(F7.cmdOK.Enabled);
    EXPECT_EQ(Rolls(), 0);
    Press(platform::kKeyEscape);
  }
}

TEST_F(DiceEntryTest, EveryWayOutUnlocksAndTheNextEntryBeginsEmpty) {
  const std::pair<const char*, std::function<void()>> waysOut[] = {
      {"Esc", [&] { Press(platform::kKeyEscape); }},
      {"button", [&] { Click(F7.cmdNoOK); }},
      {"close box", [&] { F7.PressCloseBox(); }},
      {"roll", [&] { Type("B"); }},
  };
  StartGame(kExpansion);
  for (const auto& [what, leave] : waysOut) {
    SCOPED_TRACE(what);
    Type("43");
    Event(4);
    EXPECT_THAT(Chosen(), ElementsAre("10", "03", "16"));
    EXPECT_TRUE(F7.cmdOK.Enabled);
    ExpectOpen(true);
    leave();
    ExpectOpen(false);
    OpenByMouse();
    EXPECT_THAT(Chosen(), ElementsAre("18", "17", "19"));
    EXPECT_FALSE(F7.cmdOK.Enabled);
    Type("2");
    EXPECT_THAT(Chosen(), ElementsAre("08", "17", "19"));
    Click(F7.cmdNoOK);
  }
  EXPECT_EQ(Rolls(), 1);
}

TEST_F(DiceEntryTest, MainWindowIsLockedMeanwhile) {
  OpenByMouse();
  Click(window.F1.picWurfel(0), MouseButton::Right);
  Key(window.F1, platform::FunctionKey(9));
  window.F1.PressCloseBox();
  EXPECT_EQ(Rolls(), 0);
  EXPECT_EQ(services.QuitStatus, -1);
}

TEST_F(DiceEntryTest, AttackKeepsTheMainWindowLocked) {
  StartGame(kExpansion);
  game.EventCount[4] = 6;
  Type("43B");
  EXPECT_FALSE(F7.Visible);
  EXPECT_FALSE(window.F1.Enabled);
}

TEST_F(DiceEntryTest, EventRowShowsWhereTheGameHasTheDie) {
  for (const std::int16_t gameType : {kExpansion, kBase, kExpansion}) {
    StartGame(gameType);
    OpenByMouse();
    const bool shown = gameType == kExpansion;
    EXPECT_THAT((std::vector<bool>{F7.picEW(0).Visible, F7.picEW(3).Visible, F7.lblHotkeyShow(3).Visible,
                                   F7.picPfeil(2).Visible, F7.picGewurfelt(2).Visible, !F7.picPfeil(1).Visible}),
                ElementsAre(shown, shown, shown, shown, shown, false));
    Click(F7.cmdNoOK);
  }
}

}  // namespace
}  // namespace tests
