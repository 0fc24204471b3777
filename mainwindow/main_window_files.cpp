// The files of the main window: games, settings and languages. A failure is told; what was taken over of a game until
// then stays and is shown.
#include <algorithm>
#include <fstream>

#include "../core/new_game.h"
#include "../core/points.h"
#include "../core/texts.h"
#include "../platform/mnemonic.h"
#include "../storage/game_file.h"
#include "../storage/language_file.h"
#include "../storage/path_text.h"
#include "../storage/settings_file.h"
#include "../storage/text_lines.h"
#include "../windows/saving.h"
#include "main_window.h"
#include "themes.h"

namespace mainwindow {
namespace {

namespace text = core::text;

constexpr const char* kGameFiles = " (*.obg)|*.obg";
constexpr const char* kAllFiles = " (*.*)|*.*";

const std::string kNoLanguages =
    "Die Sprachdatei fehlt oder enthält keine Sprache.\nThe language file is missing or holds no language.\n";

}  // namespace

/// Shows the file dialog; false if no file was chosen.
bool MainWindow::ChooseFile(int titleText, std::string filter, bool opens) {
  cmdLS_.Filter = std::move(filter);
  cmdLS_.InitDir = storage::TextOf(context_.places.FirstFolder());
  cmdLS_.DialogTitle = platform::WithoutMnemonic(State.Text(titleText));
  cmdLS_.OpensFile = opens;
  cmdLS_.Objection = nullptr;
  if (!opens) {
    cmdLS_.Objection = [this](const std::string& file) {
      return windows::ObjectionToSaving(State, storage::PathOf(file), !context_.places.Copies().empty());
    };
  }
  cmdLS_.SideFolder = opens ? context_.places.Copies() : std::filesystem::path();
  cmdLS_.SideName = State.Text(text::CopiesFolder);
  return services_.ChooseFile(cmdLS_) && !cmdLS_.FileName.empty();
}

void MainWindow::F1_mnuFileSaveAs_Click() {
  const std::string filter = State.Text(text::GameFiles) + kGameFiles;
  if (!ChooseFile(text::MenuSaveAs, filter, false)) return;
  const std::filesystem::path chosen = storage::PathOf(cmdLS_.FileName);
  const auto written = storage::WriteGame(chosen, storage::GameFileText(State), context_.places.Copies());
  if (!written) services_.MessageBox(windows::TextOfFailure(State, text::GameNotSaved, chosen, written));
}

void MainWindow::F1_mnuFileLoad_Click() {
  const std::string filter = State.Text(text::GameFiles) + kGameFiles + "|" + State.Text(text::AllFiles) + kAllFiles;
  if (ChooseFile(text::MenuOpen, filter, true)) LoadGame();
}

void MainWindow::LoadGame() {
  const std::filesystem::path chosen = storage::PathOf(cmdLS_.FileName);
  std::ifstream file = storage::OpenRegularFile(chosen);
  if (!file.is_open()) {
    services_.MessageBox(windows::TextOfUnopened(State, text::GameNotRead, chosen));
    return;
  }
  keeper_.Look();
  const std::string before = storage::GameFileText(State);
  const auto outcome = storage::ReadGame(file, State, *this);
  if (outcome == storage::GameFileOutcome::NotAGame) return;
  if (storage::GameFileText(State) != before) keeper_.BeginGame();
  ShowLoadedGame();
  if (outcome == storage::GameFileOutcome::Whole) {
    LeaveCopies();
  } else {
    services_.MessageBox(State.Text(text::GameNotRead) + "\n" + cmdLS_.FileName);
  }
}

/// A copy goes in time; what is made of it is saved among the user's own files.
void MainWindow::LeaveCopies() {
  std::error_code unknown;
  const storage::Places& places = context_.places;
  const std::filesystem::path loaded = storage::PathOf(cmdLS_.FileName);
  if (!std::filesystem::equivalent(loaded.parent_path(), places.Copies(), unknown)) return;
  cmdLS_.FileName = storage::TextOf(places.FirstFolder() / loaded.filename());
}

void MainWindow::ShowLoadedGame() {
  ShowEventDie();
  ShowPlayerPanels();
  core::CalcPoints(State, *this);
  DrawDiceStats();
}

void MainWindow::TellNotAGameFile() {
  services_.MessageBox(State.Text(text::NotAGameFile), State.Text(text::NotAGameFileTitle), platform::Buttons::Ok,
                       platform::Icon::Critical);
}

void MainWindow::TellOlderVersion() {
  services_.MessageBox(State.Text(text::OlderGameFile), State.Text(text::OlderGameFileTitle), platform::Buttons::Ok,
                       platform::Icon::Critical);
}

/// The second expansion brings its theme even where the user chooses the themes.
bool MainWindow::ChooseBackground() {
  const bool chosen = State.settings.AutoHG.IsOn() || State.game.OptFlottillen == core::kOn;
  return !chosen || LoadThemeImages(core::ThemeOf(State.game), State.settings, services_, F1);
}

/// Where the file cannot be read to its end, the theme stays the first one.
void MainWindow::LoadSettings() {
  std::ifstream file = storage::OpenRegularFile(context_.places.SettingsToRead());
  const bool whole = file.is_open() && storage::ReadSettings(file, State);
  F8.TickClocksAndContrast();
  if (whole) LoadThemeImages(State.settings.AutoHG.IsOff() ? 1 : State.settings.HG, State.settings, services_, F1);
}

/// Asks, stores the settings and ends the program, even where they cannot be stored; the user is told then.
void MainWindow::SaveSettings() {
  const std::string title = platform::WithoutMnemonic(State.Text(text::MenuQuit));
  const auto answer = services_.MessageBox(State.Text(text::ReallyQuit), title, platform::Buttons::YesNo);
  if (answer == platform::Answer::No) return;
  const auto path = context_.places.SettingsFile();
  const auto written = storage::WriteSettings(path, State);
  if (!written) services_.MessageBox(windows::TextOfFailure(State, text::SettingsNotSaved, path, written));
  services_.Quit(0);
}

/// False if there is no language to show the program in. At the first run the settings dialog asks for one; its OK
/// comes here again and does the rest.
bool MainWindow::LoadLanguage() {
  if (!ReadLanguageList()) return false;
  if (!storage::IsListed(State.language, State.language.Languages[0])) {
    F8.SelectFirstLanguage();
    return storage::IsListed(State.language, State.language.Languages[0]);
  }
  ReadTexts();
  SetCaptions();
  DrawPlayerPanels();
  DrawDiceStats();
  return true;
}

/// False if the file holds no language: the user is told, at the start in two languages, and the languages known so far
/// stay.
bool MainWindow::ReadLanguageList() {
  const auto path = context_.places.LanguageFile();
  std::ifstream file = storage::OpenRegularFile(path);
  core::Language found = State.language;
  if (storage::ListLanguages(file, found) == 0) {
    const std::string& said = State.Text(text::NoLanguages);
    services_.MessageBox((said.empty() ? kNoLanguages : said) + "\n" + storage::TextOf(path));
    return false;
  }
  State.language = found;
  F8.ListLanguages();
  return true;
}

/// Reads what is there, and tells the user of a language that lacks some texts.
void MainWindow::ReadTexts() {
  const auto path = context_.places.LanguageFile();
  std::ifstream file = storage::OpenRegularFile(path);
  const int count = storage::LoadTexts(file, State.language);
  SpeakLanguage();
  if (count >= core::kTexts) return;
  const std::string figures = std::to_string(std::max(count, 0)) + " / " + std::to_string(core::kTexts);
  services_.MessageBox(State.Text(text::LanguageIncomplete) + "\n" + State.language.Languages[0] + ", " + figures +
                       "\n" + storage::TextOf(path));
}

void MainWindow::SpeakLanguage() {
  platform::Words words{State.language.Languages[0], State.Text(text::LanguageCode), {}};
  for (int word = 0; word < platform::kWords; ++word) words.Said.push_back(State.Text(text::ToolkitWords + word));
  services_.Speak(words);
}

}  // namespace mainwindow
