// The clocks on the main window: the lower strip with the totals of the pieces on the board, painted anew each second,
// and what follows when the clocks start or stop.
#pragma once

#include "../core/game_state.h"
#include "../platform/form.h"
#include "../platform/services.h"

namespace mainwindow {

/// Draws the totals and the clocks or the word of the pause on the form's surface, in twips, by the form's outer size.
void DrawClockStrip(const core::State& state, platform::Form& f1);

/// Names the clock command after what it would do now, and keeps the screen on while the clocks run: somebody looks at
/// them, though keyboard and mouse may rest for long.
void ShowWhetherClocksRun(const core::State& state, platform::Services& services, platform::Form& f1);

}  // namespace mainwindow
