// The table of the standing: a row for each ranked player with the points and eight cells for what the player holds.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "../core/game_state.h"
#include "../core/standing.h"
#include "../platform/surface.h"

namespace dialogs {

/// The symbols that head the columns.
std::span<const core::Symbol> StandingColumns(std::int16_t gameType);

/// The table in words, as a screen reader says it: each number or cross with the name of its column.
std::string SpokenStanding(const core::State& state, const std::vector<core::RankedPlayer>& ranking);

/// Draws the table anew; coordinates are pixels of its surface, 481 by 115.
void DrawStandingTable(const core::State& state, const std::vector<core::RankedPlayer>& ranking,
                       platform::Surface& picRanking);

}  // namespace dialogs
