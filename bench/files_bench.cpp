// Saving and loading a game, each beside the least that the same bytes cost: a plain write with its syncs and renaming,
// and a bare reading of the same lines. The argument is the number of rolls that the game has seen.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <string>
#include <vector>

#include "../core/new_game.h"
#include "../storage/game_file.h"
#include "../storage/safe_file.h"
#include "../storage/text_lines.h"
#include "games.h"

namespace {

core::State GameWithRolls(int rolls) {
  core::State state;
  core::SetDefaults(state);
  bench::AddRolls(state.game, rolls);
  return state;
}

std::filesystem::path FileHere() { return std::filesystem::current_path() / "bench.obg"; }

void Save(benchmark::State& run) {
  const core::State game = GameWithRolls(static_cast<int>(run.range(0)));
  for (auto _ : run) {
    if (!storage::WriteWhole(FileHere(), storage::GameFileText(game))) run.SkipWithError("the game was not written");
  }
}

void PlainWrite(benchmark::State& run) {
  const std::string bytes = storage::GameFileText(GameWithRolls(static_cast<int>(run.range(0))));
  const std::string fresh = FileHere().string() + ".new";
  const int folder = open(FileHere().parent_path().c_str(), O_RDONLY | O_DIRECTORY);
  for (auto _ : run) {
    const int file = open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool whole =
        write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) && fsync(file) == 0;
    close(file);
    if (!whole || rename(fresh.c_str(), FileHere().c_str()) != 0 || fsync(folder) != 0)
      run.SkipWithError("not written");
  }
  close(folder);
}

class NoEvents : public storage::GameFileEvents {
 public:
  void TellNotAGameFile() override {}
  void TellOlderVersion() override {}
  bool ChooseBackground() override { return true; }
  void ShowEventDie() override {}
};

void Load(benchmark::State& run) {
  if (!storage::WriteWhole(FileHere(), storage::GameFileText(GameWithRolls(static_cast<int>(run.range(0)))))) return;
  core::State game;
  NoEvents events;
  for (auto _ : run) {
    auto file = storage::OpenRegularFile(FileHere());
    if (storage::ReadGame(file, game, events) != storage::GameFileOutcome::Whole) run.SkipWithError("no whole game");
  }
}

/// The lines of a file, its numbers as numbers; no line is held against what should stand there.
void BareRead(benchmark::State& run) {
  if (!storage::WriteWhole(FileHere(), storage::GameFileText(GameWithRolls(static_cast<int>(run.range(0)))))) return;
  for (auto _ : run) {
    const int file = open(FileHere().c_str(), O_RDONLY);
    std::string bytes(std::filesystem::file_size(FileHere()), '\0');
    if (read(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) run.SkipWithError("not read");
    close(file);
    std::vector<std::string> texts;
    std::vector<std::int16_t> numbers;
    for (std::size_t first = 0; first < bytes.size();) {
      const std::size_t end = bytes.find("\r\n", first);
      std::int16_t number = 0;
      const char* const begin = bytes.data() + first + (bytes[first] == ' ' ? 1 : 0);
      if (std::from_chars(begin, bytes.data() + end, number).ec == std::errc()) {
        numbers.push_back(number);
      } else {
        texts.emplace_back(bytes, first, end - first);
      }
      first = end + 2;
    }
    benchmark::DoNotOptimize(texts);
    benchmark::DoNotOptimize(numbers);
  }
}

BENCHMARK(Save)->Arg(0)->Arg(36)->Arg(500)->UseRealTime();
BENCHMARK(PlainWrite)->Arg(0)->Arg(36)->Arg(500)->UseRealTime();
BENCHMARK(Load)->Arg(0)->Arg(36)->Arg(500);
BENCHMARK(BareRead)->Arg(0)->Arg(36)->Arg(500);

}  // namespace
