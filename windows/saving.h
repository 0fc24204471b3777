// What every dialog that saves a file says of a place where that is not possible.
#pragma once

#include <string>

#include "../core/game_state.h"

namespace windows {

/// Why no file can be saved under this name, in words of the language; empty if it can.
std::string ObjectionToSaving(const core::State& state, const std::string& path);

}  // namespace windows
