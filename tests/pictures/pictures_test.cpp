// The windows and the printed page in telling states, compared with the text files beside this one. After a change that
// was looked at, ORVANBEG_WRITE_PICTURES=1 in the environment writes the files anew.
#include <cstdlib>

#include "../../core/dice_log.h"
#include "../../core/points.h"
#include "../../mainwindow/main_window.h"
#include "../../printing/game_report.h"
#include "../keyboard.h"
#include "../numbered_program.h"
#include "../scripted_services.h"
#include "../storage/temporary_folder.h"
#include "described.h"

namespace tests {
namespace {

constexpr platform::Modifiers kCtrl{.Control = true}, kShift{.Shift = true};

class Pictures : public TemporaryFolder {
 protected:
  Pictures() {
    services.FirstLanguage = kNumbers;
    services.Version = {3, 1, 302};
    window.F1.FrameWidth = 90;
    window.F1.FrameHeight = 345;
    window.F1.MenuBarHeight = 300;
    EXPECT_EQ(window.Load(), mainwindow::Started::Yes);
  }
  /// A game of five in which each holding, each title and each figure differs from the others.
  void PlayExpansion() {
    game.GameType = core::kFirstExpansion;
    game.NumPlayers = 5;
    game.WinPoints = 30;
    game.GameTitle = "Abend";
    game.GameInfo = "Runde 2";
    const core::TPlayer players[] = {{"Ada", 1, 3, true, false, false, false, false, 0, false, true},
                                     {"Ben", 5, 2, false, false, true, true, false, 3, false, true},
                                     {"Zoë", 0, 0, false, false, false, false, false, 1, false, true},
                                     {"Dan", 2, 1, false, false, false, false, true, 0, false, true},
                                     {"Eve", 4, 0, false, true, false, false, false, 9, true, true},
                                     {"Fay", 3, 4, false, false, false, false, false, 0, false, false}};
    std::copy(std::begin(players), std::end(players), game.Players.begin() + 1);
    game.ClockRunning = true;
    game.Clock = {3660, 58};
    window.F1.picWurfel(2).Visible = true;
    window.ShowPlayerPanels();
    core::CalcPoints(game, window);
  }
  void PlayBaseGame() {
    PlayExpansion();
    game.GameType = core::kBaseGame;
    window.F1.picWurfel(2).Visible = false;
    core::CalcPoints(game, window);
  }
  void Roll(const core::TRoll& roll) {
    state.entry = {roll.Die1, roll.Die2, roll.EventDie, 2};
    core::RecordRoll(state, window);
  }
  void RollSeven() {
    for (const core::TRoll& roll : std::initializer_list<core::TRoll>{
             {1, 1, 4}, {6, 6, 1}, {3, 4, 4}, {2, 6, 2}, {5, 3, 3}, {1, 6, 4}, {4, 5, 1}})
      Roll(roll);
  }
  void Press(platform::KeyCode code, platform::Modifiers with = {}) { Key(window.F1, code, with); }
  void Type(platform::Form& form, const std::string& keys) {
    for (const char key : keys) Key(form, static_cast<unsigned char>(key));
  }

  /// Compares with the file of this name.
  static void Expect(const std::string& name, const std::string& lines) {
    const std::filesystem::path path = std::filesystem::path(ORVANBEG_PICTURES) / (name + ".txt");
    if (std::getenv("ORVANBEG_WRITE_PICTURES")) Put(path, lines);
    EXPECT_EQ(lines, Bytes(path)) << path;
  }

  ScriptedServices services{MakeNumberedProgram(Folder)};
  mainwindow::MainWindow window{services};
  core::State& state = window.State;
  core::Game& game = state.game;
};

TEST_F(Pictures, MainWindow) {
  window.F1.timSpielzeit.Elapsed();
  Expect("start", Described(window.F1));
  PlayExpansion();
  state.settings.Contrast = core::kOff;
  RollSeven();
  window.F1.timSpielzeit.Elapsed();
  Expect("evening", Described(window.F1));
}

TEST_F(Pictures, Action) {
  PlayBaseGame();
  Press(platform::FunctionKey(2));
  std::string lines = Described(window.F4);
  Click(window.F4.cmdNix);
  PlayExpansion();
  Press(platform::FunctionKey(1));
  Expect("action", lines + Described(window.F4));
}

TEST_F(Pictures, PlayerData) {
  PlayBaseGame();
  Press(platform::FunctionKey(5), kShift);
  std::string lines = Described(window.F5);
  Click(window.F5.cmdOK);
  PlayExpansion();
  Press(platform::FunctionKey(2), kShift);
  Expect("player_data", lines + Described(window.F5));
}

TEST_F(Pictures, GameInfo) {
  PlayExpansion();
  game.OptFlottillen = game.OptScenario = core::kOn;
  Press('I', kCtrl);
  Expect("game_info", Described(window.F6));
}

TEST_F(Pictures, DiceEntry) {
  PlayExpansion();
  Type(window.F1, "4");
  Type(window.F7, "3");
  Expect("dice_entry", Described(window.F7));
}

TEST_F(Pictures, Settings) {
  Press(platform::FunctionKey(8));
  std::string lines = Described(window.F8);
  Click(window.F8.chkHGAuto);
  Click(window.F8.cmdOK);
  mainwindow::MainWindow first(services);
  services.WhileVisible = [&](platform::Form& form) {
    lines += Described(form);
    Click(first.F8.cmdOK);
    form.Pick(first.F8.comSelectLang, 0);
    Click(first.F8.cmdOK);
  };
  first.Load();
  Expect("settings", lines);
}

TEST_F(Pictures, Standing) {
  PlayBaseGame();
  game.WinPoints = 12;
  core::CalcPoints(game, window);
  std::string lines = Described(window.F9);
  Click(window.F9.optWinOrder(1));
  lines += Described(window.F9);
  Click(window.F9.cmdOK);
  PlayExpansion();
  Press('T', kCtrl);
  lines += Described(window.F9);
  Click(window.F9.optWinOrder(0));
  Expect("standing", lines + Described(window.F9));
}

TEST_F(Pictures, Print) {
  services.Printers = {"Laser", "Tinte"};
  Press('P', kCtrl);
  Expect("print", Described(window.F10));
}

TEST_F(Pictures, Attack) {
  PlayExpansion();
  game.EventCount[4] = 6;
  Roll({1, 2, 4});
  Expect("attack", Described(window.F11));
}

TEST_F(Pictures, NewGame) {
  Press('N', kCtrl);
  std::string lines = Described(window.F20);
  for (platform::Control* control : std::initializer_list<platform::Control*>{
           &window.F20.optB, &window.F20.chkFlo, &window.F20.chkSzen, &window.F20.cmdA(1), &window.F20.cmdB(1)})
    Click(*control);
  Expect("new_game", lines + Described(window.F20));
}

TEST_F(Pictures, Help) {
  Put(Folder / "tastatur.txt", "one\r\ntw\xF6\r\n");
  Press(platform::FunctionKey(11));
  Press(platform::FunctionKey(12));
  for (int i = 0; i < 8; ++i) window.F3.timClock.Elapsed();
  Expect("help", Described(window.F2) + Described(window.F3));
}

TEST_F(Pictures, Page) {
  PlayExpansion();
  RollSeven();
  platform::Surface page;
  printing::DrawGameReport(state, ",", page);
  std::string lines = Drawing(page);
  PlayBaseGame();
  core::UndoLastRoll(state, window);
  printing::DrawGameReport(state, ".", page);
  Expect("page", lines + "In the base game:\n" + Drawing(page));
}

}  // namespace
}  // namespace tests
