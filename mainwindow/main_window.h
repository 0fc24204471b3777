// The main window with everything that belongs to it: the game in memory, the dialogs, the commands. It is the screen
// of the rules. Games, settings and languages are read and written in main_window_files.cpp.
#pragma once

#include <array>

#include "../core/game_state.h"
#include "../core/rolls.h"
#include "../core/screen.h"
#include "../dialogs/f11_attack.h"
#include "../dialogs/f20_new_game.h"
#include "../dialogs/f2_text_viewer.h"
#include "../dialogs/f3_about.h"
#include "../dialogs/f4_player_action.h"
#include "../dialogs/f5_player_data.h"
#include "../dialogs/f6_game_info.h"
#include "../dialogs/f7_dice_entry.h"
#include "../dialogs/f8_settings.h"
#include "../dialogs/f9_standing.h"
#include "../platform/desktop.h"
#include "../platform/services.h"
#include "../printing/f10_print.h"
#include "../storage/evening_copies.h"
#include "../storage/game_file.h"
#include "commands.h"
#include "f1.h"

namespace mainwindow {

/// How the start-up went.
enum class Started { Yes, NoLanguage };

class MainWindow : public core::Screen, private storage::GameFileEvents {
 public:
  explicit MainWindow(platform::Services& services);

  /// The start-up sequence, up to the shown main window. `NoLanguage`: the language file cannot be used; the user has
  /// been told and the process has to end with an error.
  Started Load();

  /// Where this program's files are.
  const storage::Places& Places() const { return places_; }

  core::State State;
  platform::Desktop Desktop;
  mainwindow::F1 F1;

 private:
  windows::Lock lock_{F1};  // with the context made before the dialogs, which are made with it
  const storage::Places places_;
  windows::Context context_;

 public:
  dialogs::F2 F2;
  dialogs::F3 F3;
  dialogs::F4 F4;
  dialogs::F5 F5;
  dialogs::F6 F6;
  dialogs::F7 F7;
  dialogs::F8 F8;
  dialogs::F9 F9;
  printing::F10 F10;
  dialogs::F11 F11;
  dialogs::F20 F20;

  // core::Screen
  void DrawDiceStats() override;
  void DrawPlayerPanels() override;
  void ShowRolledDice() override;
  void ShowAttack() override { F11.ShowAttack(); }
  void CloseDiceDialog() override { F7.Leave(); }

  /// The panels of the seats that play.
  void ShowPlayerPanels();

  // One for each menu entry; the tool bar calls the same.
  void F1_mnuGameNew_Click() { F20.OpenNewGame(); }
  void F1_mnuFileLoad_Click();
  void F1_mnuFileSaveAs_Click();
  void F1_mnuGameInfo_Click() { F6.PrepareGameInfo(); }
  void F1_mnuFilePrint_Click() { F10.OpenPrint(); }
  void F1_mnuFileQuit_Click() { SaveSettings(); }
  void F1_mnuExtraZS_Click();
  void F1_mnuSpecialLHS_Click();
  void F1_mnuExtraDelLastW_Click();
  void F1_mnuExtraClock_Click();
  void F1_mnuExtraSettings_Click() { F8.OpenSettings(); }
  void F1_mnuExtraAutoDice_Click() { AutoRoll(core::EventDieOf::Menu); }
  void F1_mnuHelpKeys_Click() { F2.ShowFile("tastatur.txt"); }
  void F1_mnuHelpInfo_Click() { F3.OpenAbout(); }

  /// One second has passed: the clocks count and the lower strip is painted.
  void F1_timSpielzeit_Timer();

 private:
  void SetWorkingFolder();
  void CentreDialogs();
  void SetCaptions();
  void ShowNewGame();
  /// As they are spoken: black, red, event; 0 is a blank one.
  void NameDice(std::array<int, 3> faces);
  std::vector<windows::Dialog*> Dialogs();

  void WireInput();
  void F1_tbrMenu_ButtonClick(int index);
  void F1_Form_KeyUp(platform::KeyCode code, platform::Modifiers with);
  void F1_picSP_MouseUp(int index, platform::MouseButton button);
  void F1_picWurfel_MouseUp(platform::MouseButton button);
  void PrepareDataDialog(int seat);
  void AutoRoll(core::EventDieOf command);

  // In main_window_files.cpp.
  bool LoadLanguage();
  bool ReadLanguageList();
  void ReadTexts();
  void SpeakLanguage();
  void LoadSettings();
  void SaveSettings();
  void LoadGame();
  void LeaveCopies();
  void ShowLoadedGame();
  bool ChooseFile(int titleText, std::string filter, bool opens);

  // storage::GameFileEvents
  void TellNotAGameFile() override;
  void TellOlderVersion() override;
  bool ChooseBackground() override;
  void ShowEventDie() override;

  platform::Services& services_;
  platform::FileDialog cmdLS_;  ///< keeps the name chosen last, in either direction
  storage::EveningKeeper keeper_{State};
  std::array<int, 3> namedFaces_{};
};

}  // namespace mainwindow
