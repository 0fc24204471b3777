// The table of the main window's commands: one row is a menu entry with its caption, its text in the language, its
// shortcut, its button on the tool bar and what it does.
#pragma once

#include <memory>
#include <span>

#include "../platform/menu.h"

namespace mainwindow {

class MainWindow;

struct Command {
  platform::MenuRow Menu;
  int Text = 0;                         ///< number of caption and tooltip in the language; 0: set elsewhere or fixed
  int Tool = 0;                         ///< index of the button on the tool bar; 0: none
  void (MainWindow::*Run)() = nullptr;  ///< nothing for menus and separators
};

/// In the order of the menu.
std::span<const Command> Commands();

/// The menu bar that the table describes, without any click.
std::unique_ptr<platform::Menu> MakeMenu();

}  // namespace mainwindow
