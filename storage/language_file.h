// The language file: any number of blocks, each a mark, the language's name and its texts by position: 118, and further
// ones if it likes. The languages of the program are whatever blocks the file holds.
#pragma once

#include <istream>
#include <string>

#include "../core/game_state.h"

namespace storage {

/// Lists the names of all blocks in `Languages`, from 1 on, and returns how many there are. A text that looks like a
/// mark counts as one here.
int ListLanguages(std::istream& file, core::Language& language);

/// Whether `name` is one of the listed languages.
bool IsListed(const core::Language& language, const std::string& name);

/// Fills `Text` with the block of the language that `Languages[0]` names. Returns how many of the texts 1 to 118 the
/// block has, or -1 if the search ran off the end of the file; those that it lacks are empty. Further lines are texts
/// if the first of them, 119, is a language's code. Of the further texts the program's own, 161 and on, are English
/// where the block has none, and those of the toolkit are empty, which speaks for itself then.
int LoadTexts(std::istream& file, core::Language& language);

}  // namespace storage
