// F5, the data dialog: one player's whole record, corrected by hand. No rule of the game applies here, each change goes
// into the record at once, and points are worked out when the dialog is left.
#pragma once

#include "../windows/dialog.h"

namespace dialogs {

class F5 : public windows::Dialog {
 public:
  explicit F5(const windows::Context& context);

  // Rows 0 to 9; the buttons and symbols belong to the rows 1 to 9 and count from 0.
  platform::ControlArray<platform::Label> lblData;
  platform::ControlArray<platform::TextBox> txtData;
  platform::ControlArray<platform::CommandButton> cmdMinus;
  platform::ControlArray<platform::CommandButton> cmdPlus;
  platform::ControlArray<platform::PictureBox> picSymbol;
  platform::CommandButton cmdOK;

  /// Opens the dialog on the record of the seat `DataPlayer`, playing or not; does nothing for a number that is no
  /// seat.
  void PrepareDataDialog();
  void SetCaptions() override;

 private:
  core::TPlayer& Player();
  void ShowRows();
  void ShowValue(int row);
  void Step(int row, int by);
  void F5_txtData_Change(int row);
  void F5_txtData_KeyUp(int row);
};

}  // namespace dialogs
