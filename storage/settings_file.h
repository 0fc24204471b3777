// The settings file: what the user has set, from one run of the program to the next. Written in one fixed order of 39
// lines, read in any order and any case.
#pragma once

#include <filesystem>
#include <istream>
#include <string>

#include "../core/game_state.h"
#include "safe_file.h"

namespace storage {

/// The bytes of the file.
std::string SettingsText(const core::State& state);

/// Takes over what the file says, over what holds already. False where the reading ended before the file did, or within
/// an entry; all that was read before stays.
bool ReadSettings(std::istream& file, core::State& state);

/// Writes the file, and makes its folder if there is none.
WriteOutcome WriteSettings(const std::filesystem::path& file, const core::State& state);

}  // namespace storage
