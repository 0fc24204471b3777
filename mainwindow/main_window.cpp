#include "main_window.h"

#include "../windows/image_lists.h"
#include "dice_chart.h"
#include "last_six.h"
#include "themes.h"

namespace mainwindow {

using windows::imlW;

MainWindow::MainWindow(platform::Services& services)
    : F1(Desktop, MakeMenu()), F7({State, *this, services, Desktop, F1}), services_(services) {
  WireInput();
  // Closing the window ends the process at once: nothing is asked and nothing is stored.
  F1.Close = [this] { services_.Quit(0); };
}

void MainWindow::DrawDiceStats() {
  const std::string separator = services_.DecimalSeparator();
  DrawDiceChart(State, separator, F1.picW.Drawing);
  F1.picInfoLine.Visible = State.settings.ShowLast6;
  if (State.settings.ShowLast6) DrawLastSix(State, F1.picInfoLine.Drawing);
}

void MainWindow::DrawPlayerPanels() {}

void MainWindow::ShowPlayerPanels() {
  for (int seat = 1; seat <= core::kSeats; ++seat) {
    F1.picSP(seat - 1).Visible = State.game.Players[static_cast<std::size_t>(seat)].Active;
  }
}

void MainWindow::ShowRolledDice() {
  F1.picWurfel(0).Image = imlW.Image(State.entry.Die1 + windows::kBeforeBlackFaces);
  F1.picWurfel(1).Image = imlW.Image(State.entry.Die2);
  if (State.game.GameType == core::kFirstExpansion) {
    F1.picWurfel(2).Image = imlW.Image(State.entry.EventDie + windows::kBeforeEventFaces);
  }
}

void MainWindow::ShowAttack() {}

void MainWindow::UnlockMainWindow() { F1.Enabled = true; }

void MainWindow::CloseDiceDialog() { F7.Visible = false; }

void MainWindow::CalcPoints() { DrawPlayerPanels(); }

bool MainWindow::LoadThemeImages(int theme) {
  return mainwindow::LoadThemeImages(theme, State.settings, services_, F1);
}

void MainWindow::SaveSettings() {}

}  // namespace mainwindow
