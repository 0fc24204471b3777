// Message boxes, and the window above which they and the file dialog stand.
#pragma once

#include <QWidget>
#include <string>

#include "../services.h"

namespace platform::qt {

/// Shows a box and waits for the answer; an empty title is that of the program.
Answer ShowMessageBox(const std::string& text, const std::string& title, Buttons buttons, Icon icon);

/// The window that a box stands above: the active one or, where none is just after another box, the last that is still
/// shown. Null before there is any.
QWidget* WindowBelow();

}  // namespace platform::qt
