// Commands from the menu, its shortcuts and the tool bar; keys and clicks of the main window.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using platform::Answer;
using platform::FunctionKey;
using platform::MouseButton;
using testing::ElementsAre;

struct InputTest : MainWindowTest {
  platform::Form& F1 = window.F1;
};

TEST_F(InputTest, UndoAsksFromEveryEntryAndNoIsTheWayBack) {
  const ScriptedServices::Box question{"Den letzten Würfelwert wirklich rückgängig machen?", "",
                                       platform::Buttons::YesNo, platform::Icon::None};
  const std::pair<const char*, std::function<void()>> entries[] = {
      {"menu", [&] { F1.ClickMenu((*F1.MenuBar)["mnuExtraDelLastW"]); }},
      {"shortcut", [&] { Press(platform::kKeyBackspace, {.Alt = true}); }},
      {"tool bar", [&] { F1.ClickTool(window.F1.tbrMenu, 9); }},
  };
  for (const auto& [what, undo] : entries) {
    SCOPED_TRACE(what);
    Type("34\r");
    services.Boxes.clear();
    services.Answers = {Answer::No, Answer::Yes};
    undo();
    EXPECT_EQ(Rolls(), 1);
    undo();
    EXPECT_EQ(Rolls(), 0);
    EXPECT_THAT(services.Boxes, ElementsAre(question, question));
  }
  EXPECT_EQ(Face(window.F1.picWurfel(0)), "09") << "the dice go on showing the roll";
}

TEST_F(InputTest, KeysWithAndWithoutModifiers) {
  struct Case {
    const char* What;
    platform::KeyCode Code;
    platform::Modifiers With;
    int CurrentPlayer, DataPlayer, Die1;
    bool Clamps;
  };
  const platform::Modifiers none, shift{.Shift = true}, ctrl{.Control = true}, alt{.Alt = true};
  const Case cases[] = {{"F1", FunctionKey(1), none, 1, 0, 0, true},
                        {"F2 of an empty seat", FunctionKey(2), none, 2, 0, 0, true},
                        {"F4", FunctionKey(4), none, 4, 0, 0, true},
                        {"F3 of an empty seat", FunctionKey(3), none, 3, 0, 0, false},
                        {"F6 of an empty seat", FunctionKey(6), none, 6, 0, 0, false},
                        {"Shift+F1", FunctionKey(1), shift, 0, 1, 0, false},
                        {"Ctrl+F6 of an empty seat", FunctionKey(6), ctrl, 0, 6, 0, false},
                        {"Alt+F3", FunctionKey(3), alt, 0, 3, 0, false},
                        {"1", '1', none, 0, 0, 1, true},
                        {"6", '6', none, 0, 0, 6, true},
                        {"0", '0', none, 0, 0, 0, true},
                        {"7", '7', none, 0, 0, 0, true},
                        {"Shift+3", '3', shift, 0, 0, 0, false},
                        {"3 of the number pad", platform::kKeyNumberPad0 + 3, none, 0, 0, 0, true},
                        {"F10", FunctionKey(10), none, 0, 0, 0, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.What);
    mainwindow::MainWindow fresh(services);
    fresh.Load();
    auto& state = fresh.State;
    for (const std::size_t seat : {2U, 3U}) state.game.Players[seat].Active = false;
    state.game.PlayerPoints = {0, -1, 100, 99, -32768, 32767, 0};
    Key(fresh.F1, c.Code, c.With);
    EXPECT_EQ(state.game.CurrentPlayer, c.CurrentPlayer);
    EXPECT_EQ(state.game.DataPlayer, c.DataPlayer);
    EXPECT_EQ(state.entry.Die1, c.Die1);
    EXPECT_EQ(fresh.F7.Visible, c.Die1 > 0);
    EXPECT_EQ(state.game.PlayerPoints[1], c.Clamps ? 0 : -1);
    EXPECT_EQ(state.game.PlayerPoints[5], c.Clamps ? 99 : 32767);
  }
}

TEST_F(InputTest, ToolBarIndexWithoutButtonDoesNothing) {
  for (const int index : {-1, 0, 6, 11, 14}) F1.ClickTool(window.F1.tbrMenu, index);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_TRUE(F1.Enabled);
}

TEST_F(InputTest, MouseOnDiceAndPanels) {
  Click(window.F1.picWurfel(1), MouseButton::Middle);
  EXPECT_FALSE(window.F7.Visible);
  Click(window.F1.picWurfel(2), MouseButton::Right);
  EXPECT_EQ(Rolls(), 0) << "hidden in the base game";
  PlayExpansion();
  services.RandomNumbers = {0.5, 0.9, 0.7};
  Click(window.F1.picWurfel(2), MouseButton::Right);
  EXPECT_EQ(game.DiceLog[1], (core::TRoll{4, 6, 3}));
  EXPECT_THAT((std::vector{Face(window.F1.picWurfel(0)), Face(window.F1.picWurfel(1)), Face(window.F1.picWurfel(2))}),
              ElementsAre("10", "06", "15"));
  services.RandomNumbers = {0.5, 0.9, 0.7};
  Press(FunctionKey(9));
  EXPECT_EQ(game.DiceLog[2], (core::TRoll{4, 6, 4}));
  EXPECT_TRUE(F1.Enabled);
  Click(window.F1.picSP(2), MouseButton::Right);
  EXPECT_EQ(game.DataPlayer, 3);
  F1.Enabled = true;
  Click(window.F1.picSP(3), MouseButton::Middle);
  EXPECT_EQ(game.CurrentPlayer, 4);
}

TEST_F(InputTest, CloseBoxEndsAtOnceWithoutQuestion) {
  F1.PressCloseBox();
  EXPECT_EQ(services.QuitStatus, 0);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(InputTest, LastSixRollsShowOnlyWhereWanted) {
  window.State.settings.ShowLast6 = false;
  window.DrawDiceStats();
  EXPECT_FALSE(window.F1.picInfoLine.Visible);
  window.State.settings.ShowLast6 = true;
  window.DrawDiceStats();
  EXPECT_TRUE(window.F1.picInfoLine.Visible);
}

}  // namespace
}  // namespace tests
