// Commands from the menu, its shortcuts and the tool bar; keys and clicks of the main window.
#include "../main_window_fixture.h"

namespace tests {
namespace {

using platform::Answer;
using platform::FunctionKey;
using platform::MouseButton;

TEST_F(MainWindowTest, UndoAsksFromEveryEntryAndNoIsTheWayBack) {
  mainwindow::F1& F1 = window.F1;
  const ScriptedServices::Box question{"Den letzten Wurf wirklich rückgängig machen?", "", platform::Buttons::YesNo,
                                       platform::Icon::None};
  const Act entries[] = {[&] { F1.ClickMenu((*F1.MenuBar)["mnuExtraDelLastW"]); },
                         [&] { Press(platform::kKeyBackspace, {.Alt = true}); }, [&] { F1.ClickTool(F1.tbrMenu, 9); }};
  for (const Act& undo : entries) {
    Type("34\r");
    services.Boxes.clear();
    services.Answers = {Answer::No, Answer::Yes};
    for (const int left : {1, 0}) {
      for (const int noButton : {-1, 0, 6, 11, 14}) F1.ClickTool(F1.tbrMenu, noButton);
      undo();
      EXPECT_EQ(Rolls(), left);
    }
    EXPECT_THAT(services.Boxes, testing::ElementsAre(question, question));
  }
  EXPECT_EQ(Faces(F1.picWurfel), "09 04 19") << "the dice go on showing the roll";
}

TEST_F(MainWindowTest, KeysWithAndWithoutModifiers) {
  const platform::Modifiers none, shift{.Shift = true}, ctrl{.Control = true}, alt{.Alt = true};
  // Key, current player, player of the data dialog, black die, whether the points are brought into two digits.
  const std::tuple<platform::KeyCode, platform::Modifiers, int, int, int, bool> cases[] = {
      {FunctionKey(1), none, 1, 0, 0, true},
      {FunctionKey(2), none, 2, 0, 0, true},
      {FunctionKey(3), none, 3, 0, 0, false},
      {FunctionKey(4), none, 4, 0, 0, true},
      {FunctionKey(1), shift, 0, 1, 0, false},
      {FunctionKey(6), ctrl, 0, 6, 0, false},
      {FunctionKey(3), alt, 0, 3, 0, false},
      {FunctionKey(10), none, 0, 0, 0, true},
      {'1', none, 0, 0, 1, true},
      {'6', none, 0, 0, 6, true},
      {'0', none, 0, 0, 0, true},
      {'7', none, 0, 0, 0, true},
      {'3', shift, 0, 0, 0, false},
      {platform::kKeyNumberPad0 + 3, none, 0, 0, 0, true}};
  for (const auto& [key, with, current, data, die, clamps] : cases) {
    mainwindow::MainWindow fresh(services);
    fresh.Load();
    core::Game& after = fresh.State.game;
    for (const std::size_t seat : {2U, 3U}) after.Players[seat].Active = false;
    after.PlayerPoints = {0, -1, 100, 99, -32768, 32767, 0};
    Key(fresh.F1, key, with);
    EXPECT_EQ(std::tuple(after.CurrentPlayer, after.DataPlayer, fresh.State.entry.Die1, fresh.F7.Visible.Get()),
              std::tuple(current, data, die, die > 0))
        << key;
    EXPECT_EQ(after.PlayerPoints[1], clamps ? 0 : -1) << key;
    EXPECT_EQ(after.PlayerPoints[5], clamps ? 99 : 32767) << key;
  }
}

TEST_F(MainWindowTest, MouseOnDiceAndPanelsAndTheCloseBox) {
  mainwindow::F1& F1 = window.F1;
  Click(F1.picWurfel(1), MouseButton::Middle);
  Click(F1.picWurfel(2), MouseButton::Right);  // hidden in the base game
  EXPECT_TRUE(!window.F7.Visible && Rolls() == 0);
  PlayExpansion();
  services.RandomNumbers = {0.5, 0.9, 0.7, 0.5, 0.9, 0.7};
  Click(F1.picWurfel(2), MouseButton::Right);
  EXPECT_EQ(game.DiceLog[1], (core::TRoll{4, 6, 3}));
  EXPECT_EQ(Faces(F1.picWurfel), "10 06 15");
  Press(FunctionKey(9));
  EXPECT_EQ(game.DiceLog[2], (core::TRoll{4, 6, 4}));
  Click(F1.picSP(3), MouseButton::Middle);
  EXPECT_EQ(game.CurrentPlayer, 4);
  Click(window.F4.cmdNix);
  Click(F1.picSP(2), MouseButton::Right);
  EXPECT_EQ(game.DataPlayer, 3);
  F1.Enabled = true;
  F1.PressCloseBox();
  EXPECT_TRUE(services.QuitStatus == 0 && services.Boxes.empty()) << "it ends at once without a question";
}

TEST_F(MainWindowTest, EveryDialogLocksAndEveryWayOutUnlocks) {
  const Act attack = [&] { game.EventCount[4] = 6, game.GameType = core::kFirstExpansion, Type("43B"); };
  const std::tuple<platform::Form*, Act, platform::Control*, platform::KeyCode> dialogs[] = {
      {&window.F4, [&] { Press(FunctionKey(2)); }, &window.F4.cmdNix, platform::kKeyEscape},
      {&window.F5, [&] { Press(FunctionKey(6), {.Alt = true}); }, &window.F5.cmdOK, platform::kKeyEnter},
      {&window.F6, [&] { Press('I', {.Control = true}); }, &window.F6.cmdOK, platform::kKeyEnter},
      {&window.F7, [&] { Type("43"); }, &window.F7.cmdNoOK, platform::kKeyEscape},
      {&window.F9, [&] { Press('T', {.Control = true}); }, &window.F9.cmdOK, platform::kKeyEnter},
      {&window.F9, [&] { window.F1.ClickTool(window.F1.tbrMenu, 7); }, &window.F9.cmdOK, platform::kKeyEnter},
      {&window.F10, [&] { Press('P', {.Control = true}); }, &window.F10.cmdPrintCancel, platform::kKeyEscape},
      {&window.F11, attack, &window.F11.cmdOK, platform::kKeyEnter},
      {&window.F20, [&] { Press('N', {.Control = true}); }, &window.F20.cmdCancel, platform::kKeyEscape}};
  for (const auto& [dialog, open, button, key] : dialogs) {
    for (int way = 0; way < 3; ++way) {
      open();
      EXPECT_TRUE(Locking(*dialog)) << dialog->Name;
      Click(window.F1.picWurfel(0), MouseButton::Right);  // the main window takes nothing
      window.F1.PressCloseBox();
      way == 0 ? Click(*button) : way == 1 ? Key(*dialog, key) : dialog->PressCloseBox();
      EXPECT_TRUE(Closed(*dialog)) << dialog->Name << ", way " << way;
    }
  }
  EXPECT_TRUE(Rolls() == 3 && services.QuitStatus == -1) << "only the attacks come with a roll";
}

}  // namespace
}  // namespace tests
