// The printed report: the whole game on one page, as a list of drawing steps in 1/300 inch, the same on every printer.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../platform/surface.h"

namespace printing {

// In 1/300 inch: what the page takes of its sheet, down to below the total, and where its texts end on the narrower of
// the usual papers.
inline constexpr double kPageWidth = 2470;
inline constexpr double kPageHeight = 1850;
inline constexpr double kTextRight = 2440;

/// Draws the page. The figures of the chart (`TotalRolls`, `MaxDiceCount`, `DicePercent`) must be up to date; every
/// drawing of the chart leaves them so. `decimalSeparator` is the system's.
void DrawGameReport(const core::State& state, const std::string& decimalSeparator, platform::Surface& page);

}  // namespace printing
