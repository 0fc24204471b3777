// The words of the toolkit's own boxes, dialogs and menus, as the language of the program says them.
#pragma once

#include <string>
#include <vector>

namespace platform {

/// In the order in which a language file holds them.
enum class Word {
  Yes,
  No,
  Ok,
  Cancel,
  Open,
  Save,
  FileName,
  FileType,
  Folder,
  Back,
  Forward,
  ParentFolder,
  NewFolder,
  List,
  Details,
  Name,
  Size,
  Type,
  Modified,
  Computer,
  Rename,
  Delete,
  ShowHidden,
  Remove,
  RecentPlaces,
  AskOverwrite,
  NoSuchFolder,
  NoSuchFile,
  AskDelete,
  CannotDelete,
  BadName,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  SelectAll,
  Ctrl,
  Shift,
  Alt,
  Backspace,
};
inline constexpr int kWords = static_cast<int>(Word::Backspace) + 1;

struct Words {
  std::string Name;               ///< of the language, in itself
  std::string Code;               ///< "fi" or "pt_BR"; empty: not known
  std::vector<std::string> Said;  ///< by Word; an empty one is left to the toolkit
};

}  // namespace platform
