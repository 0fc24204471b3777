// The language file: any number of blocks, each a mark, the language's name and 118 texts by position. The languages of
// the program are whatever blocks the file holds.
#pragma once

#include <istream>
#include <string>

#include "../core/game_state.h"

namespace storage {

/// Lists the names of all blocks, at most ten, in `Languages[1..10]`; the rest of them is emptied. Returns how many
/// were listed. A text that looks like a mark counts as one here.
int ListLanguages(std::istream& file, core::Language& language);

/// Whether `name` is one of the listed languages.
bool IsListed(const core::Language& language, const std::string& name);

/// Fills `Text[1..118]` with the block of the language that `Languages[0]` names. Returns how many texts the block has,
/// up to 118, or -1 if the search ran off the end of the file. Texts that the block does not have are empty.
int LoadTexts(std::istream& file, core::Language& language);

}  // namespace storage
