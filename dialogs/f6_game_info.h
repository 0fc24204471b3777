// F6, the game info: what kind of game is played, and the title and info line, which can be changed.
#pragma once

#include "../windows/dialog.h"
#include "../windows/game_info.h"

namespace dialogs {

class F6 : public windows::Dialog {
 public:
  explicit F6(const windows::Context& context);

  windows::GameInfoFrame Info;
  platform::Frame fraSpielart;
  platform::Label lblGameInfo;
  platform::ControlArray<platform::PictureBox> picGameStatus;
  platform::CommandButton cmdOK;

  /// Fills the dialog from the game and opens it.
  void PrepareGameInfo();
  void SetCaptions() override;

 private:
  std::string Summary();
  void ShowPictures();
  void F6_cmdOK_Click();
};

}  // namespace dialogs
