// Writes a game as a file of the newest version holds it: 1591 lines, one value on each, told apart by their order
// alone.
#pragma once

#include <string>

#include "../core/game_state.h"

namespace storage {

/// The bytes of the game in memory. Called by the command that saves, which hands them to WriteWhole.
std::string GameFileText(const core::State& state);

}  // namespace storage
