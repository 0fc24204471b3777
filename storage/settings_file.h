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
/// an entry; all that was read before stands. Called by the start-up, which has set the defaults.
bool ReadSettings(std::istream& file, core::State& state);

/// Where the file stands: in the program's folder if it can be written there, else in a folder of its own below the
/// user's configuration folder. A file that was once written there is found again, even if the program's folder can be
/// written later.
std::filesystem::path SettingsPath(const std::filesystem::path& programFolder,
                                   const std::filesystem::path& configurationFolder);

/// The file to read at the start: the same, or one beside the program that can only be read, as long as the user has
/// none.
std::filesystem::path SettingsToRead(const std::filesystem::path& programFolder,
                                     const std::filesystem::path& configurationFolder);

/// Writes the file, and makes its folder if there is none. Called by the quit.
WriteOutcome WriteSettings(const std::filesystem::path& file, const core::State& state);

}  // namespace storage
