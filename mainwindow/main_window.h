// The main window with everything that hangs on it: the game in memory, the dialogs, the commands. It is the screen of
// the rules. Its parts stand in files of their own: start-up, commands' handlers, keys and mouse, the language.
#pragma once

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

  core::State State;
  platform::Desktop Desktop;
  mainwindow::F1 F1;

 private:
  windows::Lock lock_{F1};  // with the context made before the dialogs, which are made with it
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
  void F1_mnuGameNew_Click();
  void F1_mnuFileLoad_Click();
  void F1_mnuFileSaveAs_Click();
  void F1_mnuGameInfo_Click();
  void F1_mnuFilePrint_Click();
  void F1_mnuFileQuit_Click();
  void F1_mnuExtraZS_Click();
  void F1_mnuSpecialLHS_Click();
  void F1_mnuExtraDelLastW_Click();
  void F1_mnuExtraClock_Click();
  void F1_mnuExtraSettings_Click();
  void F1_mnuExtraAutoDice_Click();
  void F1_mnuHelpKeys_Click();
  void F1_mnuHelpInfo_Click();

  /// One second has passed: the clocks count and the lower strip is painted.
  void F1_timSpielzeit_Timer();

 private:
  // Start-up, in main_window_start.cpp.
  void SetWorkingFolder();
  void CentreDialogs();

  // The language, in main_window_language.cpp.
  Started LoadLanguage();
  bool ReadLanguageList();
  void ReadTexts();
  void TellOfBlock(const std::string& file, int count);
  void SetCaptions();
  void FollowClock();

  // Keys and mouse, in main_window_input.cpp.
  void WireInput();
  void F1_tbrMenu_ButtonClick(int index);
  void F1_Form_KeyUp(platform::KeyCode code, platform::Modifiers with);
  void F1_picSP_MouseUp(int index, platform::MouseButton button);
  void F1_picWurfel_MouseUp(platform::MouseButton button);
  bool KeyOfSeat(int seat);
  void PrepareDataDialog(int seat);
  void AutoRoll(core::EventDieOf command);

  // Files, in main_window_files.cpp.
  void LoadSettings();
  void SaveSettings();
  void LoadGame();
  void SaveGame();
  bool ChooseFile(int titleText, std::string filter, bool opens);

  bool LoadThemeImages(int theme);

  // storage::GameFileEvents
  void TellNotAGameFile() override;
  void TellOlderVersion() override;
  bool ChooseBackground() override;
  void ShowEventDie() override;

  void FollowNewGame();
  std::vector<windows::Dialog*> Dialogs();

  platform::Services& services_;
  platform::FileDialog cmdLS_;  ///< keeps the name chosen last, in either direction
};

}  // namespace mainwindow
