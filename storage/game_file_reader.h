// Reads a game file of any of the four versions into the game in memory. No value is held against a range; what was
// read up to a fault stays, so the game may be half the old and half the new one then.
#pragma once

#include <istream>

#include "../core/game_state.h"

namespace storage {

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

/// Called by the command that loads. `NumPlayers` is counted from the flags of the players.
GameFileOutcome ReadGame(std::istream& file, core::State& state, GameFileEvents& events);

}  // namespace storage
