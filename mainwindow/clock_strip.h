// The lower strip of the main window, painted anew each second: the totals of the pieces on the board, and the clocks
// or the word of the pause.
#pragma once

#include "../core/game_state.h"
#include "../platform/form.h"

namespace mainwindow {

/// Draws the strip on the form's surface, in twips, by the form's outer size.
void DrawClockStrip(const core::State& state, platform::Form& f1);

}  // namespace mainwindow
