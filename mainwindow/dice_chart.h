// The dice chart: a histogram of the sums against their theoretical share, the counts of the event die and the total of
// the rolls, always drawn whole. Coordinates are pixels of its surface, 609 by 237.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../platform/surface.h"

namespace mainwindow {

/// Works out the figures of the game and draws them. `decimalSeparator` is the system's.
void DrawDiceChart(core::State& state, const std::string& decimalSeparator, platform::Surface& picW);

/// The figures of the chart in words: the total, and how often each sum has come up.
std::string SpokenChart(const core::State& state);

}  // namespace mainwindow
