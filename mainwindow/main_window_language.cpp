// The language of the main window: finds it, reads its texts and puts them into the captions.
#include <algorithm>
#include <fstream>

#include "../platform/mnemonic.h"
#include "../storage/language_file.h"
#include "../storage/text_lines.h"
#include "main_window.h"

namespace mainwindow {

/// At the first run the settings dialog asks for a language; its OK comes here again and does the rest.
Started MainWindow::LoadLanguage() {
  if (!ReadLanguageList()) return Started::NoLanguage;
  if (!storage::IsListed(State.language, State.language.Languages[0])) {
    F8.SelectFirstLanguage();
    return storage::IsListed(State.language, State.language.Languages[0]) ? Started::Yes : Started::NoLanguage;
  }
  ReadTexts();
  SetCaptions();
  DrawPlayerPanels();
  DrawDiceStats();
  return Started::Yes;
}

/// False if the file holds no language: the user is told, and the languages known so far stay.
bool MainWindow::ReadLanguageList() {
  const auto path = context_.Places().LanguageFile();
  std::ifstream file = storage::OpenRegularFile(path);
  core::Language found = State.language;
  if (storage::ListLanguages(file, found) == 0) {
    services_.MessageBox("Die Sprachdatei fehlt oder enthält keine Sprache:\n" + path.string() +
                         "\n\nThe language file is missing or holds no language:\n" + path.string());
    return false;
  }
  State.language = found;
  F8.ListLanguages();
  return true;
}

void MainWindow::ReadTexts() {
  const auto path = context_.Places().LanguageFile();
  std::ifstream file = storage::OpenRegularFile(path);
  const int count = storage::LoadTexts(file, State.language);
  if (count < core::kTexts) TellOfBlock(path.string(), count);
}

void MainWindow::TellOfBlock(const std::string& file, int count) {
  const std::string& name = State.language.Languages[0];
  const std::string figures = std::to_string(std::max(count, 0)) + " / " + std::to_string(core::kTexts);
  services_.MessageBox("Die Sprache \"" + name + "\" ist unvollständig, " + figures + " Texte in\n" + file +
                       "\n\nThe language \"" + name + "\" is incomplete, " + figures + " texts in\n" + file);
}

void MainWindow::SetCaptions() {
  for (const Command& command : Commands()) {
    if (command.Text == 0) continue;
    const std::string& text = State.Text(command.Text);
    (*F1.MenuBar)[command.Menu.Name].Caption = text;
    if (command.Tool != 0) F1.tbrMenu.SetToolTip(command.Tool, platform::WithoutMnemonic(text));
  }
  FollowClock();
  for (int i = 0; i < core::kSeats; ++i) F1.picSP(i).ToolTipText = State.Text(27 + i);
  for (int i = 0; i < 3; ++i) F1.picWurfel(i).ToolTipText = State.Text(33);
  for (windows::Dialog* dialog : Dialogs()) dialog->SetCaptions();
}

/// The clock has been started or stopped: while it runs somebody looks at it, though keyboard and mouse may rest long.
void MainWindow::FollowClock() {
  (*F1.MenuBar)["mnuExtraClock"].Caption = State.Text(State.game.ClockRunning ? 111 : 112);
  services_.KeepScreenAwake(State.game.ClockRunning, "The clock of the game is running");
}

}  // namespace mainwindow
