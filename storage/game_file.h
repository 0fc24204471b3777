// Game files: 1591 lines in the newest version, one value on each, told apart by their order alone. Files of all four
// versions are read.
#pragma once

#include <istream>
#include <string>

#include "../core/game_state.h"

namespace storage {

/// The bytes of the game in memory, as a file of the newest version.
std::string GameFileText(const core::State& state);

/// What reading needs of the main window, while it goes on.
class GameFileEvents {
 public:
  virtual ~GameFileEvents() = default;

  virtual void TellNotAGameFile() = 0;
  virtual void TellOlderVersion() = 0;
  /// The background of the game whose kind and options have just been read; the rest is unread. False stops the load.
  virtual bool ChooseBackground() = 0;
  /// Shows or hides the event die by `GameType`; a kind that there is not changes nothing.
  virtual void ShowEventDie() = 0;
};

enum class GameFileOutcome {
  NotAGame,  ///< the user was told, nothing has changed
  Stopped,   ///< at a line that is missing, the first one included, or holds no such value, or at the background
  Whole,     ///< panels and chart have to be drawn anew
};

/// Reads a game file into the game in memory. No value is held against a range; what was read up to a fault stays, so
/// the game may be half the old and half the new one then. `NumPlayers` is counted from the flags of the players.
GameFileOutcome ReadGame(std::istream& file, core::State& state, GameFileEvents& events);

}  // namespace storage
