// From Qt's key events to the program's key codes.
#pragma once

#include <QKeyEvent>

#include "../keys.h"

namespace platform::qt {

/// The key's code. Digits of the top row are told by their position, whatever the layout and Shift make of them; the
/// number pad is never the top row.
KeyCode CodeOf(const QKeyEvent& event);

/// Whether the windows are those of a Wayland compositor, whatever it is drawn with.
bool OnWayland();

Modifiers ModifiersOf(Qt::KeyboardModifiers held);

}  // namespace platform::qt
