// Between Qt's keys and the program's key codes.
#pragma once

#include <QKeyEvent>
#include <QString>

#include "../keys.h"

namespace platform::qt {

/// The key's code. Digits of the top row are recognised by their position, whatever the layout and Shift make of them,
/// or by their key where the position is not known. The number pad is never the top row.
KeyCode CodeOf(const QKeyEvent& event);

/// Whether the windows are those of a Wayland compositor, whatever it is drawn with.
bool OnWayland();

/// Whether the windows are those of Windows.
bool OnWindows();

Modifiers ModifiersOf(Qt::KeyboardModifiers held);

/// A shortcut as menus show it: "Ctrl+N", "F7", in the toolkit's own words; empty where there is no key.
QString TextOf(const Shortcut& shortcut);

}  // namespace platform::qt
