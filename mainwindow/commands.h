// The table of the main window's commands: one row is a menu entry with its caption, its text in the language, its
// shortcut, its button on the tool bar and what it does.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "../platform/menu.h"
#include "../platform/picture.h"

namespace mainwindow {

class MainWindow;
using Handler = void (MainWindow::*)();

struct Command {
  platform::MenuRow Menu;
  int Text = 0;            ///< number of caption and tooltip in the language; 0: set elsewhere or fixed
  bool HasButton = false;  ///< on the tool bar
  Handler Run = nullptr;   ///< nothing for menus and separators
};

/// In the order of the menu.
std::span<const Command> Commands();

/// The commands of the tool bar's buttons from left to right; null is a separator, which stands between the commands
/// of two menus.
std::vector<const Command*> ToolButtons();

/// The pictures of these buttons, empty for a separator.
std::vector<platform::Picture> ToolPictures();

/// The menu bar that the table describes, without any click.
std::unique_ptr<platform::Menu> MakeMenu();

}  // namespace mainwindow
