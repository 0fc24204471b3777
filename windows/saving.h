// What the program says of a file that it cannot save or open.
#pragma once

#include <filesystem>
#include <string>

#include "../core/game_state.h"
#include "../storage/safe_file.h"

namespace windows {

/// Why no file can be saved under this name, in words of the language; empty if it can. `inPlace`: it may be written
/// over the one that is there.
std::string ObjectionToSaving(const core::State& state, const std::filesystem::path& file, bool inPlace);

/// A text of the language that tells of a failure, the file and the cause, one below the other.
std::string TextOfFailure(const core::State& state, int failure, const std::filesystem::path& file,
                          const storage::WriteOutcome& outcome);

/// The same of a file that cannot be opened for reading; the cause only where a text of the language tells it.
std::string TextOfUnopened(const core::State& state, int failure, const std::filesystem::path& file);

}  // namespace windows
