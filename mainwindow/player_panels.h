// The panels of the seats: symbols for all that a player holds, the seat, the name and, large, the points. Leaders
// have another ground and another colour.
#pragma once

#include "../core/game_state.h"
#include "../platform/services.h"
#include "f1.h"

namespace mainwindow {

/// Repaints all six panels, hidden ones too, without working out points and leaders. A ground whose file is missing
/// leaves the old one.
void PaintPanels(const core::State& state, platform::Services& services, F1& f1);

}  // namespace mainwindow
