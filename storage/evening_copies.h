// Every game keeps a copy of itself in a folder of copies, so that an evening survives whatever ends the program.
// Copies are game files, named by date, time and title; the newest twenty are kept. They are written on a thread of
// their own, and what goes wrong there changes nothing for the players.
#pragma once

#include <chrono>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

#include "../core/game_state.h"
#include "safe_file.h"

namespace storage {

inline constexpr int kMostCopies = 20;

/// The file of one game. Made by the main thread, it then belongs to one thread at a time.
class GameCopy {
 public:
  /// A game that began at this time. Nothing is written yet.
  GameCopy(std::filesystem::path folder, std::time_t begun);

  /// Writes the game, for the first time under a name that no file bears, and removes what is more than `kMostCopies`
  /// then. A new title gives the file a new name.
  WriteOutcome Write(const std::string& title, std::string_view bytes);

 private:
  WriteOutcome WriteUnderNewName(const std::string& name, std::string_view bytes);
  void RemoveOldCopies() const;

  std::filesystem::path folder_;
  std::string stamp_;           ///< when the game began, as the file's name tells it
  std::string name_;            ///< the title in the file's name
  std::filesystem::path file_;  ///< empty before the first write
};

/// Writes copies on a thread of its own, of each game only the newest that waits.
class CopyWriter {
 public:
  CopyWriter();
  CopyWriter(const CopyWriter&) = delete;
  CopyWriter& operator=(const CopyWriter&) = delete;
  /// Waits for what is left to write, for a second at most.
  ~CopyWriter();

  void Put(std::shared_ptr<GameCopy> copy, std::string title, std::string bytes);
  /// Whether the last write that is done was a failure.
  bool HasFailed() const;

 private:
  struct Shared;
  std::shared_ptr<Shared> shared_;  ///< outlives the writer where a disk does not answer in time
  std::jthread thread_;
};

/// Looks at the game and has it kept where it has changed.
class EveningKeeper {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// Keeps nothing before `Start`.
  explicit EveningKeeper(const core::State& state) : state_(state) {}
  /// Keeps the last state.
  ~EveningKeeper();

  /// The game as it stands is not worth a copy; each change from now on is. An empty folder: nothing is kept.
  void Start(const std::filesystem::path& folder);
  /// To be called after changes, and again and again. Keeps the game if anything has changed that its file holds. The
  /// clock alone counts once a minute, as does a copy that could not be written.
  void Look(Time now = std::chrono::steady_clock::now());
  /// The game in memory is another one from now on, with a file of its own.
  void BeginGame();

 private:
  void Keep(std::string bytes, Time now);

  const core::State& state_;
  std::filesystem::path folder_;
  std::string kept_;  ///< the bytes last looked at or handed to the writer
  Time keptAt_;
  std::shared_ptr<GameCopy> copy_;
  std::unique_ptr<CopyWriter> writer_;
};

/// Writes a game file. Where only the file may be written and not its folder, the old bytes go to the folder of copies
/// before they are written over.
WriteOutcome WriteGame(const std::filesystem::path& file, std::string_view bytes, const std::filesystem::path& copies);

}  // namespace storage
