// The dispatch of keys, clicks and tool-bar buttons of the main window.
#include "../core/game_state.h"
#include "../core/points.h"
#include "../core/rolls.h"
#include "main_window.h"

namespace mainwindow {

using platform::MouseButton;

void MainWindow::WireInput() {
  for (const Command& command : Commands()) {
    if (command.Run) (*F1.MenuBar)[command.Menu.Name].Click = [this, run = command.Run] { (this->*run)(); };
  }
  F1.tbrMenu.ButtonClick = [this](int index) { F1_tbrMenu_ButtonClick(index); };
  F1.KeyUp = [this](platform::KeyCode code, platform::Modifiers with) { F1_Form_KeyUp(code, with); };
  for (int i = F1.picSP.First(); i <= F1.picSP.Last(); ++i) {
    F1.picSP(i).MouseUp = [this, i](MouseButton button) { F1_picSP_MouseUp(i, button); };
  }
  for (int i = F1.picWurfel.First(); i <= F1.picWurfel.Last(); ++i) {
    F1.picWurfel(i).MouseUp = [this](MouseButton button) { F1_picWurfel_MouseUp(button); };
  }
}

void MainWindow::F1_tbrMenu_ButtonClick(int index) {
  for (const Command& command : Commands()) {
    if (command.Tool != 0 && command.Tool == index) return (this->*command.Run)();
  }
}

void MainWindow::F1_Form_KeyUp(platform::KeyCode code, platform::Modifiers with) {
  const int seat = code - platform::kKeyF1 + 1;
  const bool isSeat = core::IsSeat(seat);
  if (with.Any()) {
    if (isSeat) PrepareDataDialog(seat);
    return;
  }
  if (isSeat && !KeyOfSeat(seat)) return;
  if (const int die = core::DieOfKey(code)) F7.OpenDiceDialogByKey(die);
  core::ClampPoints(State.figures);
}

/// The key of a seat; false if nobody plays there. The first two seats always play.
bool MainWindow::KeyOfSeat(int seat) {
  State.asked.CurrentPlayer = static_cast<std::int16_t>(seat);
  if (seat > 2 && !State.game.Players[seat].Active) return false;
  F4.OpenActionDialog(seat);
  return true;
}

void MainWindow::PrepareDataDialog(int seat) {
  State.asked.DataPlayer = static_cast<std::int16_t>(seat);
  F5.PrepareDataDialog();
}

void MainWindow::F1_picSP_MouseUp(int index, MouseButton button) {
  if (button == MouseButton::Right) {
    PrepareDataDialog(index + 1);
  } else {
    F4.OpenActionDialog(index + 1);
  }
}

void MainWindow::F1_picWurfel_MouseUp(MouseButton button) {
  if (button == MouseButton::Left) F7.PrepareDiceDialog();
  if (button == MouseButton::Right) AutoRoll(core::EventDieOf::Mouse);
}

}  // namespace mainwindow
