#include "game_file.h"

#include <algorithm>
#include <optional>
#include <span>

#include "../core/new_game.h"
#include "../core/numbers.h"
#include "code_page.h"
#include "text_lines.h"

namespace storage {
namespace {

// The order of the lines is written down once, for the writer and the reader. `Lines` has an operation for each kind of
// line, which is false where the file cannot be followed any further; nothing behind it is looked at then.

constexpr std::string_view kNewestVersion = "OBGV31";
constexpr std::string_view kVersionWithoutClock = "OBGV30";
constexpr std::string_view kOldVersion = "OBGV24";  ///< without the log of rolls, as all before it
constexpr std::string_view kOldestVersion = "OBGV21";
constexpr std::size_t kLegacyRolls = 6;

template <typename Lines, typename Player>
bool PlayerLines(Lines& lines, Player& player) {
  return lines.Text(player.Name) && lines.Number(player.Settlements) && lines.Number(player.Cities) &&
         lines.Flag(player.LongestRoad) && lines.Flag(player.LargestArmy) && lines.Flag(player.PoliticsMetropolis) &&
         lines.Flag(player.TradeMetropolis) && lines.Flag(player.ScienceMetropolis) &&
         lines.Number(player.BonusPoints) && lines.Flag(player.Merchant) && lines.Flag(player.Active);
}

/// How often each sum from 1 and each event face fell.
template <typename Lines, typename Game>
bool CountLines(Lines& lines, Game& game) {
  const auto padded = [&lines](auto& count) { return lines.PaddedNumber(count); };
  return std::ranges::all_of(core::WithoutPlaceZero(game.DiceCount), padded) &&
         std::ranges::all_of(core::WithoutPlaceZero(game.EventCount), padded);
}

template <typename Lines, typename Rolls>
bool RollLines(Lines& lines, Rolls rolls) {
  return std::ranges::all_of(rolls, [&lines](auto& roll) {
    return lines.Number(roll.Die1) && lines.Number(roll.Die2) && lines.Number(roll.EventDie);
  });
}

template <typename Lines, typename Game>
bool KindLines(Lines& lines, Game& game) {
  return lines.Number(game.GameType) && lines.Number(game.OptFlottillen.Value) && lines.Number(game.OptScenario.Value);
}

template <typename Lines, typename State>
bool EndLines(Lines& lines, State& state) {
  return lines.Number(state.settings.SiegAnzeige.Value) && lines.Number(state.game.WinPoints) &&
         lines.Text(state.game.GameTitle) && lines.Text(state.game.GameInfo);
}

class WrittenLines {
 public:
  bool Text(std::string_view text) { return Add(text); }
  bool Number(std::int16_t number) { return Add(std::to_string(number)); }
  bool PaddedNumber(std::int16_t number) { return Add(core::PrintedNumber(number)); }
  bool Flag(bool flag) { return Add(FlagWord(flag)); }
  const std::string& Bytes() const { return writer_.Bytes(); }

 private:
  bool Add(std::string_view line) {
    writer_.Add(line);
    return true;
  }
  LineWriter writer_;
};

class ReadLines {
 public:
  explicit ReadLines(std::istream& file) : reader_(file, LineFeeds::PartOfLine) {}

  bool Text(std::string& text) { return NextLine() && Take(text, std::optional(FromCodePage(line_))); }
  bool Number(std::int16_t& number) { return NextLine() && Take(number, core::WholeNumberIn(line_)); }
  bool PaddedNumber(std::int16_t& number) { return Number(number); }
  bool Flag(bool& flag) { return NextLine() && Take(flag, FlagIn(line_)); }
  bool NextLine() { return reader_.NextBytes(line_); }
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

bool ReadOldGame(ReadLines& lines, core::Game& game, GameFileEvents& events) {
  if (!ReadPlayersAndCounts(lines, game) || !lines.Number(game.GameType)) return false;
  if (!RollLines(lines, std::span(game.LegacyRolls).first<kLegacyRolls>())) return false;
  if (const core::Kind* kind = core::KindOf(game.GameType)) game.WinPoints = kind->WinPoints;
  events.ShowEventDie();
  if (game.FileVersion == kOldestVersion) return true;
  return lines.Number(game.WinPoints) && lines.NextLine() && lines.NextLine();
}

}  // namespace

std::string GameFileText(const core::State& state) {
  const core::Game& game = state.game;
  WrittenLines lines;
  lines.Text(kNewestVersion);
  for (const core::TPlayer& player : core::WithoutPlaceZero(game.Players)) PlayerLines(lines, player);
  CountLines(lines, game);
  RollLines(lines, core::WithoutPlaceZero(game.DiceLog));
  KindLines(lines, game);
  EndLines(lines, state);
  lines.Number(game.Clock[0]);
  return lines.Bytes();
}

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
