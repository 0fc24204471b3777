// F7, the dice dialog: collects the roll that the players have thrown, by two digits and a letter or by clicks, and
// hands it to be recorded.
#pragma once

#include "../windows/dialog.h"

namespace dialogs {

class F7 : public windows::Dialog {
 public:
  explicit F7(const windows::Context& context);

  platform::ControlArray<platform::PictureBox> picSW;     ///< choices of the black die
  platform::ControlArray<platform::PictureBox> picRW;     ///< choices of the red die
  platform::ControlArray<platform::PictureBox> picEW;     ///< choices of the event die
  platform::ControlArray<platform::Label> lblHotkeyShow;  ///< the keys of the event faces
  platform::ControlArray<platform::PictureBox> picPfeil;
  platform::ControlArray<platform::PictureBox> picGewurfelt;  ///< chosen: black, red, event
  platform::CommandButton cmdNoOK;
  platform::CommandButton cmdOK;

  /// Opens the dialog empty.
  void PrepareDiceDialog();
  /// Opens the dialog with the black die (1 to 6) entered.
  void OpenDiceDialogByKey(int value);

  /// Gives the choices their pictures.
  void SetPictures();
  /// Shows the keys of the event faces as they are set.
  void ShowHotkeys();
  /// Takes title and captions from the language.
  void SetCaptions() override;

 private:
  void Start();
  void ShowEventRow(bool visible);
  void ShowChosen();
  void F7_Form_KeyUp(int keyCode);
  void F7_picSW_MouseUp(int index);
  void F7_picRW_MouseUp(int index);
  void F7_picEW_MouseUp(int index);
  void F7_cmdOK_Click();
  void F7_cmdNoOK_Click();
};

}  // namespace dialogs
