// The printed report: the whole game on one page, as a list of drawing steps in 1/220 inch, the same on every printer.
#pragma once

#include <string>

#include "../core/game_state.h"
#include "../platform/surface.h"

namespace printing {

inline constexpr int kUnitsPerInch = 220;
/// Of a sheet on its side the page takes nearly all of A4, down to below the total; texts end at the right margin.
inline constexpr int kPageWidth = 2540;
inline constexpr int kPageHeight = 1800;
inline constexpr int kTextRight = 2480;

/// Draws the page. The figures of the chart (`TotalRolls`, `MaxDiceCount`, `DicePercent`) must be up to date; every
/// drawing of the chart leaves them so. `decimalSeparator` is the system's.
void DrawGameReport(const core::State& state, const std::string& decimalSeparator, platform::Surface& page);

}  // namespace printing
