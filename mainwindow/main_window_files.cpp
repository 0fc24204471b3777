// Games and settings from and to files. A failure while loading a game ends the command without a word; what was done
// so far stays.
#include "../core/new_game.h"
#include "../core/points.h"
#include "../platform/mnemonic.h"
#include "../storage/game_file.h"
#include "../storage/settings_file.h"
#include "../storage/text_lines.h"
#include "../windows/dialog.h"
#include "main_window.h"

namespace mainwindow {
namespace {

constexpr int kOpenTitle = 3;
constexpr int kSaveTitle = 4;
constexpr const char* kGameFiles = " (*.obg)|*.obg";
constexpr const char* kAllFiles = " (*.*)|*.*";

}  // namespace

/// Shows the file dialog; false if no file was chosen.
bool MainWindow::ChooseFile(int titleText, std::string filter, bool opens) {
  cmdLS_.Filter = std::move(filter);
  cmdLS_.InitDir = context_.Places().FirstFolder().string();
  cmdLS_.DialogTitle = platform::WithoutMnemonic(State.Text(titleText));
  cmdLS_.OpensFile = opens;
  cmdLS_.NoSuchFolder = windows::kNoSuchFolder;
  return services_.ChooseFile(cmdLS_) && !cmdLS_.FileName.empty();
}

void MainWindow::SaveGame() {
  const std::string filter = State.Text(109) + kGameFiles;
  if (!ChooseFile(kSaveTitle, filter, false)) return;
  const auto written = storage::WriteWhole(cmdLS_.FileName, storage::GameFileText(State));
  if (written) return;
  const std::string where = cmdLS_.FileName + " (" + written.Cause.message() + ")";
  services_.MessageBox("Das Spiel konnte nicht gespeichert werden:\n" + where + "\n\nThe game could not be saved:\n" +
                       where);
}

void MainWindow::LoadGame() {
  const std::string filter = State.Text(109) + kGameFiles + "|" + State.Text(110) + kAllFiles;
  if (!ChooseFile(kOpenTitle, filter, true)) return;
  std::ifstream file = storage::OpenRegularFile(cmdLS_.FileName);
  if (!file.is_open() || storage::ReadGame(file, State, *this) != storage::GameFileOutcome::Whole) return;
  ShowPlayerPanels();
  core::CalcPoints(State, *this);
  DrawDiceStats();
}

void MainWindow::TellNotAGameFile() {
  services_.MessageBox(State.Text(102), State.Text(103), platform::Buttons::Ok, platform::Icon::Critical);
}

void MainWindow::TellOlderVersion() {
  services_.MessageBox(State.Text(104), State.Text(105), platform::Buttons::Ok, platform::Icon::Critical);
}

/// The second expansion brings its theme even where the user chooses the themes.
bool MainWindow::ChooseBackground() {
  const bool chosen = State.settings.AutoHG.IsOn() || State.game.OptFlottillen == core::kOn;
  return !chosen || LoadThemeImages(core::ThemeOf(State.game));
}

/// The theme stays the first one where the file cannot be read to its end.
void MainWindow::LoadSettings() {
  std::ifstream file = storage::OpenRegularFile(context_.Places().SettingsToRead());
  const bool whole = file.is_open() && storage::ReadSettings(file, State);
  F8.TickClocksAndContrast();
  if (whole) LoadThemeImages(State.settings.AutoHG.IsOff() ? 1 : State.settings.HG);
}

/// Asks, stores the settings and ends the program. Where they cannot be stored the user is told, and it ends all the
/// same.
void MainWindow::SaveSettings() {
  const std::string title = platform::WithoutMnemonic(State.Text(7));
  if (services_.MessageBox(State.Text(101), title, platform::Buttons::YesNo) == platform::Answer::No) return;
  const auto path = context_.Places().SettingsFile();
  if (!storage::WriteSettings(path, State)) {
    services_.MessageBox("Die Einstellungen konnten nicht gespeichert werden:\n" + path.string() +
                         "\n\nThe settings could not be saved:\n" + path.string());
  }
  services_.Quit(0);
}

}  // namespace mainwindow
