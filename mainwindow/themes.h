// The background themes: three sets of picture files below the program's folder, told apart by a prefix of their names.
#pragma once

#include "../core/game_state.h"
#include "../platform/services.h"
#include "f1.h"

namespace mainwindow {

/// Puts the pictures of a theme (1 to 3) on the main window and makes it the chosen one, `HG`; any other number does
/// nothing. Stops at a picture that cannot be loaded and leaves the old one there: false. Draws nothing.
bool LoadThemeImages(int theme, core::Settings& settings, platform::Services& services, F1& f1);

/// The ground of a seat's panel (1 to 6) in a theme, while the seat leads or not. Empty for an unknown theme.
platform::Picture PanelPicture(int theme, int seat, bool leads);

}  // namespace mainwindow
