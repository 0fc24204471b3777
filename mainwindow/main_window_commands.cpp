// What the commands of the main window do, one handler for each menu entry.
#include "../core/player_actions.h"
#include "../core/points.h"
#include "../core/rolls.h"
#include "main_window.h"

namespace mainwindow {

void MainWindow::F1_mnuGameNew_Click() { F20.OpenNewGame(); }
void MainWindow::F1_mnuFileLoad_Click() { LoadGame(); }
void MainWindow::F1_mnuFileSaveAs_Click() { SaveGame(); }
void MainWindow::F1_mnuGameInfo_Click() { F6.PrepareGameInfo(); }
void MainWindow::F1_mnuFilePrint_Click() { F10.OpenPrint(); }
void MainWindow::F1_mnuFileQuit_Click() { SaveSettings(); }

void MainWindow::F1_mnuExtraZS_Click() {
  State.asked.GameWon = false;
  F9.ShowStanding();
}

void MainWindow::F1_mnuSpecialLHS_Click() {
  core::TakeLongestRoad(State.game);
  services_.MessageBox(State.Text(107));
  core::CalcPoints(State, *this);
}

void MainWindow::F1_mnuExtraDelLastW_Click() {
  const auto answer = services_.MessageBox(State.Text(106), {}, platform::Buttons::YesNo);
  if (answer != platform::Answer::No) core::UndoLastRoll(State, *this);
}

void MainWindow::F1_mnuExtraClock_Click() {
  State.game.ClockRunning = !State.game.ClockRunning;
  FollowClock();
}

void MainWindow::F1_mnuExtraSettings_Click() { F8.OpenSettings(); }
void MainWindow::F1_mnuExtraAutoDice_Click() { AutoRoll(core::EventDieOf::Menu); }
void MainWindow::F1_mnuHelpKeys_Click() { F2.ShowFile("tastatur.txt"); }
void MainWindow::F1_mnuHelpInfo_Click() { F3.OpenAbout(); }

void MainWindow::AutoRoll(core::EventDieOf command) {
  const auto random = [this] { return services_.Random(); };
  core::AutoRoll(State, *this, random, command);
}

}  // namespace mainwindow
