// The dice chart: a histogram of the sums against their theoretical share, the counts of the event die and the total of
// the rolls; and the strip of the last six rolls below it. Both are always drawn whole.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../platform/surface.h"

namespace mainwindow {

/// Works out the figures of the game and draws them, in pixels of a surface of 609 by 237. `decimalSeparator` is the
/// system's.
void DrawDiceChart(core::State& state, const std::string& decimalSeparator, platform::Surface& picW);

/// The figures of the chart in words: the total, and how often each sum has come up.
std::string SpokenChart(const core::State& state);

/// Draws the last six rolls from the log, the newest furthest left, in pixels of a surface of 609 by 21. `TotalRolls`
/// must be up to date.
void DrawLastSix(const core::State& state, platform::Surface& picInfoLine);

}  // namespace mainwindow
