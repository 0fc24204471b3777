// The language of the main window: finds it, reads its texts and puts them into the captions.
#include <fstream>

#include "../platform/mnemonic.h"
#include "../storage/language_file.h"
#include "main_window.h"

namespace mainwindow {
namespace {

constexpr const char* kLanguageFile = "language.ini";

// What a language calls itself, by the code that the system knows it by.
struct LanguageName {
  const char* Code;
  const char* Name;
};
constexpr LanguageName kLanguageNames[] = {
    {"de", "Deutsch"},    {"en", "English"},   {"fr", "Français"}, {"es", "Español"}, {"it", "Italiano"},
    {"nl", "Nederlands"}, {"pt", "Português"}, {"sv", "Svenska"},  {"da", "Dansk"},   {"fi", "Suomi"}};

}  // namespace

Started MainWindow::LoadLanguage() {
  const auto path = services_.ProgramFolder() / kLanguageFile;
  std::ifstream names(path, std::ios::binary);
  if (storage::ListLanguages(names, State.language) == 0) {
    services_.MessageBox("Die Sprachdatei fehlt oder enthält keine Sprache. Das Programm wird beendet:\n" +
                         path.string() + "\n\nThe language file is missing or holds no language. The program ends:\n" +
                         path.string());
    return Started::NoLanguage;
  }
  if (!storage::IsListed(State.language, State.language.Languages[0])) ChooseFirstLanguage();
  std::ifstream texts(path, std::ios::binary);
  const int count = storage::LoadTexts(texts, State.language);
  if (count < core::kTexts) TellShortBlock(count);
  SetCaptions();
  DrawPlayerPanels();
  DrawDiceStats();
  return Started::Yes;
}

void MainWindow::ChooseFirstLanguage() {
  auto& languages = State.language.Languages;
  const std::string code = services_.SystemLanguage();
  languages[0] = languages[1];
  for (const LanguageName& language : kLanguageNames) {
    if (code == language.Code && storage::IsListed(State.language, language.Name)) languages[0] = language.Name;
  }
}

void MainWindow::TellShortBlock(int count) {
  const std::string& name = State.language.Languages[0];
  const std::string figures = std::to_string(count) + " / " + std::to_string(core::kTexts);
  services_.MessageBox("Die Sprache \"" + name + "\" ist in " + kLanguageFile + " unvollständig: " + figures +
                       " Texte.\n\nThe language \"" + name + "\" is incomplete in " + kLanguageFile + ": " + figures +
                       " texts.");
}

void MainWindow::SetCaptions() {
  for (const Command& command : Commands()) {
    if (command.Text == 0) continue;
    const std::string& text = State.Text(command.Text);
    (*F1.MenuBar)[command.Menu.Name].Caption = text;
    if (command.Tool != 0) F1.tbrMenu.SetToolTip(command.Tool, platform::WithoutMnemonic(text));
  }
  ShowClockCaption();
  for (int i = 0; i < core::kSeats; ++i) F1.picSP(i).ToolTipText = State.Text(27 + i);
  for (int i = 0; i < 3; ++i) F1.picWurfel(i).ToolTipText = State.Text(33);
  for (windows::Dialog* dialog : Dialogs()) dialog->SetCaptions();
}

void MainWindow::ShowClockCaption() {
  (*F1.MenuBar)["mnuExtraClock"].Caption = State.Text(State.game.ClockRunning ? 111 : 112);
}

}  // namespace mainwindow
