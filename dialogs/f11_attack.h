// F11, the barbarian window: tells of the attack and lists each player's cities, metropolises and settlements. It only
// shows; what the barbarians lay waste is entered as an action.
#pragma once

#include "../windows/dialog.h"

namespace dialogs {

class F11 : public windows::Dialog {
 public:
  explicit F11(const windows::Context& context);

  platform::PictureBox picShowPlayers;                     ///< the table
  platform::ControlArray<platform::PictureBox> picSymbol;  ///< heads: cities, metropolises, settlements
  platform::CommandButton cmdOK;

  /// Fills the window and shows it; the lock of the main window stays as it is.
  void ShowAttack();
  void SetCaptions() override;

 private:
  void DrawRow(const core::TPlayer& player, int y);
  void DrawTotals();
};

}  // namespace dialogs
