// The figures behind the dice chart and the printed report: shares, the length of bar for one roll, and how far the
// theoretical marker reaches.
#pragma once

#include "game_state.h"

namespace core {

/// Theoretical share of each sum in percent, with one decimal, as the figures show it.
inline constexpr Numbered<float, kHighestSum + 1> DiceProbability{0,     0,     2.8F,  5.6F, 8.3F, 11.1F, 13.9F,
                                                                  16.7F, 13.9F, 11.1F, 8.3F, 5.6F, 2.8F};

/// Share of a sum (2 to 12) in percent for marker and comparison. Truncated where `DiceProbability` is rounded.
double TheoryShare(int sum);

/// Works out `TotalRolls`, `MaxDiceCount` and `DicePercent` from the counts.
void ComputeDiceFigures(const Game& game, Figures& figures);

/// Pixels of bar for one roll on the chart, from the figures: the tallest bar reaches 300 pixels, or less where the
/// marker of the sum 7 would not stay inside the same room.
int ChartBarUnit(const Figures& figures);

/// Pixels from the foot of the bars to the end of the marker of a sum.
long long ChartMarkerLength(const Figures& figures, int barUnit, int sum);

/// Whether a sum has come up more often than its share.
bool IsAboveShare(const Figures& figures, int sum);

/// Share of an event face (1 to 4) among all rolls in whole percent; 0 without rolls.
long long EventPercent(const State& state, int face);

}  // namespace core
