// Fields whose text reaches a file.
#pragma once

#include "../core/game_state.h"
#include "../platform/controls.h"

namespace windows {

/// The field takes what the code page of the files has, the nearest letter for others, and says which it cannot take.
void KeepStorable(platform::TextBox& field, const core::State& state);

}  // namespace windows
