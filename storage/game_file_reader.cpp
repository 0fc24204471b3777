#include "game_file_reader.h"

#include "../core/numbers.h"
#include "code_page.h"
#include "game_file_layout.h"
#include "line_reader.h"
#include "words.h"

namespace storage {
namespace {

class ReadLines {
 public:
  explicit ReadLines(std::istream& file) : reader_(file, LineFeeds::PartOfLine) {}

  bool Text(std::string& text) { return Drop() && Take(text, std::optional(FromCodePage(line_))); }
  bool Number(std::int16_t& number) { return Drop() && Take(number, core::WholeNumberIn(line_)); }
  bool PaddedNumber(std::int16_t& number) { return Number(number); }
  bool Flag(bool& flag) { return Drop() && Take(flag, FlagIn(line_)); }
  bool Drop() { return reader_.NextBytes(line_); }
  bool EndedByLength() const { return reader_.EndedByLength(); }

 private:
  template <typename Value>
  static bool Take(Value& into, const std::optional<Value>& value) {
    if (value) into = *value;
    return value.has_value();
  }

  LineReader reader_;
  std::string_view line_;  // numbers and flags are the same bytes in every code
};

bool ReadPlayersAndCounts(ReadLines& lines, core::Game& game) {
  game.NumPlayers = 0;
  for (core::TPlayer& player : core::WithoutPlaceZero(game.Players)) {
    if (!PlayerLines(lines, player)) return false;
    if (player.Active) ++game.NumPlayers;
  }
  return CountLines(lines, game);
}

bool ReadNewGame(ReadLines& lines, core::State& state, GameFileEvents& events) {
  core::Game& game = state.game;
  if (!ReadPlayersAndCounts(lines, game) || !RollLines(lines, core::WithoutPlaceZero(game.DiceLog))) return false;
  if (!KindLines(lines, game) || !events.ChooseBackground() || !EndLines(lines, state)) return false;
  game.Clock = {0, 0};
  if (game.FileVersion == kNewestVersion && !lines.Number(game.Clock[0])) return false;
  events.ShowEventDie();
  return true;
}

/// What it takes to win where the file does not say.
void SetUsualWinPoints(core::Game& game) {
  if (game.GameType == core::kBaseGame) game.WinPoints = 10;
  if (game.GameType == core::kFirstExpansion) game.WinPoints = 13;
}

bool ReadOldGame(ReadLines& lines, core::Game& game, GameFileEvents& events) {
  if (!ReadPlayersAndCounts(lines, game) || !lines.Number(game.GameType)) return false;
  if (!RollLines(lines, std::span(game.LegacyRolls).first<kLegacyRolls>())) return false;
  SetUsualWinPoints(game);
  events.ShowEventDie();
  if (game.FileVersion == kOldestVersion) return true;
  return lines.Number(game.WinPoints) && lines.Drop() && lines.Drop();
}

}  // namespace

GameFileOutcome ReadGame(std::istream& file, core::State& state, GameFileEvents& events) {
  ReadLines lines(file);
  std::string version;
  if (!lines.Text(version) && !lines.EndedByLength()) return GameFileOutcome::Stopped;
  const bool old = version == kOldVersion || version == kOldestVersion;
  if (!old && version != kNewestVersion && version != kVersionWithoutClock) {
    events.TellNotAGameFile();
    return GameFileOutcome::NotAGame;
  }
  state.game.FileVersion = version;
  if (old) events.TellOlderVersion();
  const bool whole = old ? ReadOldGame(lines, state.game, events) : ReadNewGame(lines, state, events);
  return whole ? GameFileOutcome::Whole : GameFileOutcome::Stopped;
}

}  // namespace storage
