// The start-up sequence of the main window; each step relies on those before it.
#include <filesystem>

#include "../core/new_game.h"
#include "../core/points.h"
#include "main_window.h"

namespace mainwindow {

Started MainWindow::Load() {
  SetWorkingFolder();
  F1.MoveTo(0, 0);
  core::SetDefaults(State);
  F8.ShowStartValues();
  LoadSettings();
  F7.ShowHotkeys();
  F8.ShowHotkeys();
  core::BeginWithoutGame(State);
  ShowEventDie();
  const Started started = LoadLanguage();
  if (started != Started::Yes) return started;
  F4.SetPictures();
  F7.SetPictures();
  CentreDialogs();
  core::StopClocks(State);
  core::CalcPoints(State, *this);
  ShowPlayerPanels();
  DrawDiceStats();
  F1.Visible = true;
  return Started::Yes;
}

void MainWindow::SetWorkingFolder() {
  std::error_code ignored;  // where it cannot be entered, the program's files cannot be read either
  std::filesystem::current_path(context_.Places().ProgramFiles(), ignored);
}

void MainWindow::CentreDialogs() {
  for (windows::Dialog* dialog : Dialogs()) {
    dialog->MoveTo((F1.Width() - dialog->Width()) / 2, (F1.Height() - dialog->Height()) / 2);
  }
}

}  // namespace mainwindow
