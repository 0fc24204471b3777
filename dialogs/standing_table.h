// The table of the standing: a row for each ranked player with the points and eight cells for what the player holds.
#pragma once

#include "../core/game_state.h"
#include "../core/ranking.h"
#include "../platform/surface.h"

namespace dialogs {

/// Draws the table anew; coordinates are pixels of its surface, 481 by 115.
void DrawStandingTable(const core::State& state, const std::vector<core::RankedPlayer>& ranking,
                       platform::Surface& picRanking);

}  // namespace dialogs
