// The strip of the last six rolls, the newest furthest left. Coordinates are pixels of its surface, 609 by 21.
#pragma once

#include "../core/game_state.h"
#include "../platform/surface.h"

namespace mainwindow {

/// Draws the strip anew from the log; `TotalRolls` must be up to date.
void DrawLastSix(const core::State& state, platform::Surface& picInfoLine);

}  // namespace mainwindow
