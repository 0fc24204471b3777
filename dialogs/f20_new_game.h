// F20, the new-game dialog: kind of game, points to win, players, title and info line. Nothing of the running game
// changes before cmdStart.
#pragma once

#include <functional>

#include "../windows/dialog.h"
#include "../windows/game_info.h"

namespace dialogs {

class F20 : public windows::Dialog {
 public:
  explicit F20(const windows::Context& context);

  platform::Frame fraA;
  platform::OptionButton optA;  ///< base game
  platform::OptionButton optB;  ///< first expansion
  platform::CheckBox chkFlo;    ///< with the second expansion
  platform::CheckBox chkSzen;   ///< a scenario
  platform::Label lblSiegbed;
  platform::ControlArray<platform::CommandButton> cmdA;  ///< points to win: 0 fewer, 1 more
  platform::TextBox txtneuSPBed;
  platform::Frame fraSetPlayers;
  platform::Label lblB;
  platform::ControlArray<platform::CommandButton> cmdB;  ///< players: 0 fewer, 1 more
  platform::TextBox txtNOP;
  platform::ControlArray<platform::Label> lblSpieler;
  platform::ControlArray<platform::TextBox> txtSpielername;
  windows::GameInfoFrame Info;
  platform::CommandButton cmdStart;
  platform::CommandButton cmdCancel;
  platform::ControlArray<platform::PictureBox> picGameStatus;

  /// The game has been started; the dialog is still shown.
  std::function<void()> OnStart = [] {};

  /// Fills the dialog and opens it.
  void OpenNewGame();
  /// Takes title and captions from the language.
  void SetCaptions() override;

 private:
  void WireEvents();
  std::int16_t ChosenKind() const;
  void UpdateGameOptions();
  void ShowStatus();
  void UpdatePlayerFields(int count);
  void F20_cmdA_Click(int index);
  void F20_cmdB_Click(int index);
  void F20_cmdStart_Click();
};

}  // namespace dialogs
