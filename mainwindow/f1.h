// F1, the main window: its controls at their places. main_window.cpp wires what they do.
#pragma once

#include "../platform/controls.h"
#include "../platform/form.h"
#include "../platform/timer.h"

namespace mainwindow {

class F1 : public platform::Form {
 public:
  /// The hidden window with the given menu and the pictures of its tool bar, of which an empty one separates.
  F1(platform::Desktop& desktop, std::unique_ptr<platform::Menu> menu, std::vector<platform::Picture> tools);

  platform::ToolBar tbrMenu;
  platform::ControlArray<platform::PictureBox> picSP;      ///< panels of the seats 1 to 6, at 0 to 5
  platform::ControlArray<platform::PictureBox> picWurfel;  ///< the dice of the last roll: black, red, event
  platform::PictureBox picW;                               ///< the dice chart
  platform::PictureBox picInfoLine;                        ///< the last six rolls
  platform::Timer timSpielzeit;
  platform::Timer timCopy;  ///< looks for changes while a dialog is open, for the copy that the evening keeps

  /// The dice before any roll.
  void ShowBlankDice();
};

}  // namespace mainwindow
