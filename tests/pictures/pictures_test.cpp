// The windows and the printed page in telling states, compared with the text files beside this one. After a change that
// was looked at, ORVANBEG_WRITE_PICTURES=1 in the environment writes the files anew.
#include <cstdlib>

#include "../../core/points.h"
#include "../../core/rolls.h"
#include "../../mainwindow/main_window.h"
#include "../../printing/game_report.h"
#include "../folders.h"
#include "../main_window_fixture.h"
#include "described.h"

namespace tests {
namespace {

class Pictures : public MainWindowTest {
 protected:
  Pictures() {
    services.Version = {3, 1, 302};
    window.F1.FrameWidth = 90;
    window.F1.FrameHeight = 345;
    window.F1.MenuBarHeight = 300;
  }
  /// A game of five in which each holding, each title and each figure differs from the others.
  void PlayExpansion() {
    game.GameType = core::kFirstExpansion;
    game.NumPlayers = 5;
    game.WinPoints = 30;
    game.GameTitle = "Abend";
    game.GameInfo = "Runde 2";
    const core::TPlayer players[] = {{"Ada", 1, 3, true, false, false, false, false, 0, false, true},
                                     {"Ben", 4, 3, false, false, true, true, false, 3, false, true},
                                     {"Zoë", 0, 0, false, false, false, false, false, 1, false, true},
                                     {"Dan", 6, 1, false, false, false, false, true, 0, false, true},
                                     {"Eve", 4, 0, false, true, false, false, false, 9, true, true},
                                     {"Fay", 3, 4, false, false, false, false, false, 0, false, false}};
    std::copy(std::begin(players), std::end(players), game.Players.begin() + 1);
    game.ClockRunning = true;
    game.Clock = {3660, 58};
    window.F1.picWurfel(2).Visible = true;
    window.ShowPlayerPanels();
    core::CalcPoints(window.State, window);
  }
  void PlayBaseGame() {
    PlayExpansion();
    game.GameType = core::kBaseGame;
    window.F1.picWurfel(2).Visible = false;
    core::CalcPoints(window.State, window);
  }
  void Roll(const core::TRoll& roll) {
    entry = {roll.Die1, roll.Die2, roll.EventDie, 2};
    core::RecordRoll(window.State, window);
  }
  void RollTenTimes() {
    for (const core::TRoll& roll : std::initializer_list<core::TRoll>{{1, 1, 4},
                                                                      {6, 6, 1},
                                                                      {3, 4, 4},
                                                                      {2, 3, 4},
                                                                      {3, 1, 4},
                                                                      {2, 6, 2},
                                                                      {5, 3, 3},
                                                                      {1, 6, 4},
                                                                      {4, 5, 1},
                                                                      {6, 5, 0}})
      Roll(roll);
  }

  /// Compares with the file of this name.
  static void Expect(const std::string& name, const std::string& lines) {
    const std::filesystem::path path = PicturesFolder() / (name + ".txt");
    if (std::getenv("ORVANBEG_WRITE_PICTURES")) Put(path, lines);
    EXPECT_EQ(lines, Bytes(path)) << path << ": if it is meant, ORVANBEG_WRITE_PICTURES=1 writes it anew";
  }
};

TEST_F(Pictures, MainWindow) {
  window.F1.timSpielzeit.Elapsed();
  Expect("start", Described(window.F1));
  PlayExpansion();
  settings.Contrast = core::kOff;
  RollTenTimes();
  window.F1.timSpielzeit.Elapsed();
  Expect("evening", Described(window.F1));
  game.GameType = core::kBaseGame;
  core::UndoLastRoll(window.State, window);
  Expect("base_game_chart", Drawing(window.F1.picW.Drawing) + Drawing(window.F1.picInfoLine.Drawing));
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
  game.OptFlottillen = core::kOn;
  game.OptScenario = core::CheckValue(-1);
  Press('I', kCtrl);
  std::string lines = Described(window.F6);
  Click(window.F6.cmdOK);
  PlayBaseGame();
  game.NumPlayers = 4;
  game.OptFlottillen = game.OptScenario = core::kOff;
  Press('I', kCtrl);
  Expect("game_info", lines + Described(window.F6));
}

TEST_F(Pictures, DiceEntry) {
  PlayExpansion();
  Type("43");
  std::string lines = Described(window.F7);
  Press(platform::kKeyEscape);
  PlayBaseGame();
  Click(window.F1.picWurfel(0));
  Expect("dice_entry", lines + Described(window.F7));
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
  core::CalcPoints(window.State, window);
  std::string lines = Described(window.F9);
  Click(window.F9.optWinOrder(0));
  lines += Drawing(window.F9.picRanking.Drawing);
  Click(window.F9.cmdOK);
  PlayExpansion();
  Press('T', kCtrl);
  lines += Described(window.F9);
  Click(window.F9.optWinOrder(1));
  Expect("standing", lines + Drawing(window.F9.picRanking.Drawing));
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
  std::string lines = Described(window.F11);
  game.Players[5].Cities = 3;
  window.F11.ShowAttack();
  Expect("attack", lines + Drawing(window.F11.picShowPlayers.Drawing));
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
  RollTenTimes();
  platform::Surface page;
  printing::DrawGameReport(window.State, ",", page);
  std::string lines = Drawing(page);
  PlayBaseGame();
  core::UndoLastRoll(window.State, window);
  printing::DrawGameReport(window.State, ".", page);
  Expect("page", lines + "In the base game:\n" + Drawing(page));
}

}  // namespace
}  // namespace tests
