// F4, the action dialog: reports with one key or click what a player has just done at the table, and closes again.
#pragma once

#include "../windows/dialog.h"

namespace dialogs {

class F4 : public windows::Dialog {
 public:
  explicit F4(const windows::Context& context);

  platform::ControlArray<platform::CommandButton> cmdSP;  ///< the actions 1 to 10
  platform::ControlArray<platform::Label> lblFTaste;      ///< their keys, at 0 to 9
  platform::CommandButton cmdNix;

  /// Opens the dialog for a seat, 1 to 6.
  void OpenActionDialog(int seat);
  /// Enables the buttons that the kind of game offers.
  void OfferActions();
  /// Gives the buttons their symbols.
  void SetPictures();
  /// Takes the captions from the language; the title is built when the dialog opens.
  void SetCaptions() override;

 private:
  void Apply();
  void F4_cmdSP_Click(int index);
  void F4_Form_KeyUp(int keyCode);
};

}  // namespace dialogs
