// F9, the standing: all players ranked by points, with a table that breaks each result down by kind of holding. As the
// winner's window its headline names who has won.
#pragma once

#include "../windows/dialog.h"

namespace dialogs {

class F9 : public windows::Dialog {
 public:
  explicit F9(const windows::Context& context);

  platform::Label lblSiegertext;
  platform::ControlArray<platform::PictureBox> picSieger;
  platform::ControlArray<platform::PictureBox> picSymbol;      ///< heads of the table's columns
  platform::PictureBox picRanking;                             ///< the table
  platform::ControlArray<platform::OptionButton> optWinOrder;  ///< the view: 0 points, 1 counts
  platform::CommandButton cmdOK;

  /// Fills the window from the game as it stands and opens it.
  void ShowStanding();
  void SetCaptions() override;

 private:
  void ShowHeadline(const std::string& firstName);
  void ShowColumnHeads();
  void F9_optWinOrder_MouseUp(int index);
};

}  // namespace dialogs
